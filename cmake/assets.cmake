# The drawings become pictures: the two deck images in the folder of the programs, where the game
# reads them, and the icon as resources inside zovin_qt. All else goes in as drawings, which the
# program paints at the size that it needs; the cards of those two images it paints from theirs too.
# The SVG files are what tools/draw_cards wrote; a build needs no Python.

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

set(signatures "${pictures}/french.firma" "${pictures}/spanish.firma")
add_custom_command(OUTPUT ${signatures}
  COMMAND ${render} signatures "${CMAKE_BINARY_DIR}/bin" "${pictures}"
  DEPENDS render_assets ${decks}
  COMMENT "Signing the decks" VERBATIM)

zovin_drawings(picture_drawings cards/*.svg sheet/*.svg cursors/*.svg icon/*.svg)
set(icon_sizes 16 22 24 32 48 64 128 256 512)
set(icons ${icon_sizes})
list(TRANSFORM icons REPLACE "(.+)" "${pictures}/zovin-\\1.png")
add_custom_command(OUTPUT ${icons}
  COMMAND ${render} resources "${drawings}" "${pictures}"
  DEPENDS render_assets ${picture_drawings}
  COMMENT "Painting the icon" VERBATIM)

add_custom_target(zovin_assets ALL DEPENDS ${decks} ${signatures} ${icons})

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

# Puts them into a target as Qt resources: what has been painted as ":/arte/zovin-48.png", and the drawings that the
# program paints itself as ":/dibujos/sheet/ficha1.svg".
zovin_drawings(own_drawings cards/*.svg cards/spanish/*.svg cards/french/*.svg sheet/*.svg
  cursors/*.svg)
function(zovin_add_assets target)
  qt_add_resources(${target} arte PREFIX /arte BASE "${pictures}" FILES ${signatures} ${icons})
  qt_add_resources(${target} dibujos PREFIX /dibujos BASE "${drawings}" FILES ${own_drawings})
  add_dependencies(${target} zovin_assets)
endfunction()

if(TARGET zovin_qt)
  zovin_add_assets(zovin_qt)
endif()
