# zovin_logic: the games, without a window system.
# zovin_qt:    what shows them on a desktop.
# Sources are found by room, so a new file needs no line here. A room that is empty makes no target.

# A function and not a macro: the caller's variable gets the files of PATTERNS, without the *_view
# ones when asked, each path relative to the root.
function(zovin_sources variable)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "EXCLUDE" "PATTERNS")
  set(found)
  foreach(pattern IN LISTS arg_PATTERNS)
    if(pattern MATCHES "\\*\\*/")
      string(REPLACE "**/" "" pattern "${pattern}")
      file(GLOB_RECURSE files CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${pattern}")
    else()
      file(GLOB files CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${pattern}")
    endif()
    list(APPEND found ${files})
  endforeach()
  if(arg_EXCLUDE)
    list(FILTER found EXCLUDE REGEX "${arg_EXCLUDE}")
  endif()
  list(REMOVE_DUPLICATES found)
  set(${variable} "${found}" PARENT_SCOPE)
endfunction()

zovin_sources(logic_sources EXCLUDE "/(forms|reports)/[^/]*_view\\.cpp$"
  PATTERNS core/*.cpp betting/*.cpp table/*.cpp storage/*.cpp games/**/*.cpp forms/*.cpp
           reports/*.cpp session/*.cpp
           platform/*.cpp platform/headless/*.cpp)
if(logic_sources)
  find_package(fmt REQUIRED)
  add_library(zovin_logic STATIC ${logic_sources})
  target_include_directories(zovin_logic PUBLIC "${CMAKE_SOURCE_DIR}")
  # What people play and install asks for no library but Qt's; every day the shared one compiles faster.
  target_link_libraries(zovin_logic PUBLIC
    $<IF:$<CONFIG:Release>,fmt::fmt-header-only,fmt::fmt>)
  # The reading of a hand of Póker is what its opponents do most: a quarter faster so.
  set_source_files_properties(games/poker/hand_reading.cpp games/poker/hand_tally.cpp
    games/poker/runs.cpp PROPERTIES COMPILE_OPTIONS "$<$<CONFIG:Release>:-O3>")
  precompiled(zovin_logic <algorithm> <array> <functional> <string> <vector> <fmt/format.h>)
endif()

if(ZOVIN_DESKTOP)
  zovin_sources(qt_sources EXCLUDE "/(app_main\\.cpp|sound_plugin/.*)$"
    PATTERNS platform/qt/**/*.cpp forms/*_view.cpp reports/*_view.cpp)
  # Moc reads the headers too, also one whose .cpp has another name.
  zovin_sources(qt_headers EXCLUDE "/sound_plugin/"
    PATTERNS platform/qt/**/*.h forms/*_view.h reports/*_view.h)
  zovin_sources(sound_plugin_sources PATTERNS platform/qt/sound_plugin/*.cpp)
endif()

if(qt_sources)
  find_package(Qt6 REQUIRED COMPONENTS Core Gui Widgets Svg PrintSupport)
  add_library(zovin_qt STATIC ${qt_sources} ${qt_headers})
  set_target_properties(zovin_qt PROPERTIES AUTOMOC ON)
  target_compile_definitions(zovin_qt PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  target_link_libraries(zovin_qt PUBLIC zovin_logic
    Qt6::Core Qt6::Gui Qt6::Widgets Qt6::Svg Qt6::PrintSupport)
  precompiled(zovin_qt <QtWidgets> <string>)
endif()

# The sound back end is loaded when a sound is first wanted, so that a silent game does not carry
# the multimedia libraries in memory.
if(sound_plugin_sources)
  find_package(Qt6 REQUIRED COMPONENTS Core Multimedia)
  add_library(zovin_sound MODULE ${sound_plugin_sources})
  set_target_properties(zovin_sound PROPERTIES
    AUTOMOC ON PREFIX "" LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin/plugins")
  target_include_directories(zovin_sound PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_libraries(zovin_sound PRIVATE Qt6::Core Qt6::Multimedia)
  file(GLOB sounds CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/assets/sounds/*.wav")
  qt_add_resources(zovin_sound sonidos
    PREFIX /sonidos BASE "${CMAKE_SOURCE_DIR}/assets/sounds" FILES ${sounds})
endif()
