# The settings files come with the program, with the values of a first start. Those beside the program that
# was built are its player's from then on: only a missing one is put there. A folder of their own keeps
# them as they were made, for the installation.

if(NOT TARGET zovin OR NOT TARGET default_settings)
  return()
endif()

set(pristine_settings "${CMAKE_BINARY_DIR}/ajustes")
set(made "${CMAKE_BINARY_DIR}/default_settings.stamp")
add_custom_command(OUTPUT "${made}"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${pristine_settings}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${pristine_settings}"
  COMMAND default_settings "${pristine_settings}"
  COMMAND default_settings "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
  COMMAND "${CMAKE_COMMAND}" -E touch "${made}"
  DEPENDS default_settings
  COMMENT "Writing the settings of a first start" VERBATIM)
add_custom_target(zovin_settings ALL DEPENDS "${made}")
