# The help viewer reads its pages from the folder `ayuda` beside the program.

if(NOT ZOVIN_DESKTOP)
  return()
endif()

file(GLOB pages RELATIVE "${CMAKE_SOURCE_DIR}/assets/help" CONFIGURE_DEPENDS
  "${CMAKE_SOURCE_DIR}/assets/help/*")
set(laid)
foreach(page IN LISTS pages)
  set(source "${CMAKE_SOURCE_DIR}/assets/help/${page}")
  set(copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ayuda/${page}")
  add_custom_command(OUTPUT "${copy}" DEPENDS "${source}" VERBATIM
    COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${copy}")
  list(APPEND laid "${copy}")
endforeach()
add_custom_target(zovin_help ALL DEPENDS ${laid})
