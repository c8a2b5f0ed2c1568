# The drawings become pictures: the two deck images in the folder of the programs, where the game
# reads them, and everything else as resources inside zovin_qt, under ":/arte". The SVG files are
# what tools/draw_cards wrote; a build needs no Python.

if(NOT ZOVIN_DESKTOP)
  return()
endif()

find_package(Qt6 REQUIRED COMPONENTS Gui Svg)
find_package(CLI11 REQUIRED)
add_executable(render_assets tools/render_assets/main.cpp)
target_include_directories(render_assets PRIVATE "${CMAKE_SOURCE_DIR}")
target_link_libraries(render_assets PRIVATE Qt6::Gui Qt6::Svg CLI11::CLI11)

set(drawings "${CMAKE_SOURCE_DIR}/assets")
set(pictures "${CMAKE_BINARY_DIR}/arte")
set(render ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
  $<TARGET_FILE:render_assets>)

function(zovin_drawings variable)
  list(TRANSFORM ARGN PREPEND "${drawings}/")
  file(GLOB found CONFIGURE_DEPENDS ${ARGN})
  set(${variable} "${found}" PARENT_SCOPE)
endfunction()

zovin_drawings(deck_drawings cards/spanish/*.svg cards/french/*.svg)
set(decks "${CMAKE_BINARY_DIR}/bin/Baraja01.bmp" "${CMAKE_BINARY_DIR}/bin/Baraja02.bmp")
add_custom_command(OUTPUT ${decks}
  COMMAND ${render} decks "${drawings}" "${CMAKE_BINARY_DIR}/bin"
  DEPENDS render_assets ${deck_drawings}
  COMMENT "Painting the decks" VERBATIM)

zovin_drawings(picture_drawings cards/*.svg sheet/*.svg cursors/*.svg icon/*.svg)
set(icon_sizes 16 22 24 32 48 64 128 256 512)
set(picture_names laminas comodin1 comodin2 dorso)
zovin_drawings(pointers cursors/*.svg)
foreach(pointer IN LISTS pointers)
  get_filename_component(name "${pointer}" NAME_WE)
  list(APPEND picture_names ${name} ${name}@2x ${name}@3x)
endforeach()
foreach(size IN LISTS icon_sizes)
  list(APPEND picture_names zovin-${size})
endforeach()
set(picture_files ${picture_names})
list(TRANSFORM picture_files REPLACE "(.+)" "${pictures}/\\1.png")
add_custom_command(OUTPUT ${picture_files}
  COMMAND ${render} resources "${drawings}" "${pictures}"
  DEPENDS render_assets ${picture_drawings}
  COMMENT "Painting the sheet, the pointers and the icon" VERBATIM)

add_custom_target(zovin_assets ALL DEPENDS ${decks} ${picture_files})

# Contact sheets for the documentation, painted on demand.
add_custom_target(zovin_contact_sheets
  COMMAND ${render} contact "${drawings}" "${CMAKE_SOURCE_DIR}/docs"
  DEPENDS render_assets ${deck_drawings} ${picture_drawings}
  COMMENT "Painting the contact sheets" VERBATIM)

# The picture of a table with numbers that the help shows, taken on demand: it lies beside the pages.
if(TARGET sonda)
  set(help_table "${drawings}/help/mesa.png")
  add_custom_target(zovin_help_table
    COMMAND "${CMAKE_COMMAND}" "-DSONDA=$<TARGET_FILE:sonda>"
      "-DSCRIPT=${CMAKE_SOURCE_DIR}/tools/render_assets/table.esc" "-DPICTURE=${help_table}"
      -P "${CMAKE_SOURCE_DIR}/cmake/table_picture.cmake"
    COMMAND ${render} table "${drawings}" "${drawings}/help"
    DEPENDS render_assets sonda ${decks}
    COMMENT "Taking the picture of the table" VERBATIM)
endif()

# Puts the pictures into a target as Qt resources: ":/arte/laminas.png", ":/arte/mano_indice@2x.png"...
function(zovin_add_assets target)
  qt_add_resources(${target} arte PREFIX /arte BASE "${pictures}" FILES ${picture_files})
  add_dependencies(${target} zovin_assets)
endfunction()

if(TARGET zovin_qt)
  zovin_add_assets(zovin_qt)
endif()

if(TARGET zovin)
  install(FILES ${decks} DESTINATION lib/zovin)
  install(FILES assets/icon/zovin.svg DESTINATION share/icons/hicolor/scalable/apps)
  foreach(size IN LISTS icon_sizes)
    install(FILES "${pictures}/zovin-${size}.png" RENAME zovin.png
      DESTINATION share/icons/hicolor/${size}x${size}/apps)
  endforeach()
endif()
