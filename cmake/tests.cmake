# Every test is found by its place and name. Labels: unit, slow, property, gui, scenario, golden,
# e2e, a11y, structure.

include(test_kinds)

if(TARGET zovin_logic)
  zovin_gtest(unit_tests unit PATTERNS tests/unit/**/*_test.cpp EXCLUDE "_slow_test\\.cpp$"
    TIMEOUT 60)
  # The preset release runs them. Elsewhere they are known to the tools and nobody has to wait for their compiling.
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    zovin_gtest(slow_tests slow PATTERNS tests/unit/**/*_slow_test.cpp TIMEOUT 3600)
  else()
    zovin_sources(slow_sources PATTERNS tests/unit/**/*_slow_test.cpp)
    add_library(slow_tests OBJECT EXCLUDE_FROM_ALL ${slow_sources})
    target_link_libraries(slow_tests PRIVATE ${test_libraries} GTest::gtest GTest::gmock)
  endif()

  zovin_sources(property_sources PATTERNS tests/property/**/*_test.cpp)
  if(property_sources)
    find_package(rapidcheck REQUIRED)
    zovin_gtest(property_tests property PATTERNS tests/property/**/*_test.cpp TIMEOUT 1800
      LIBRARIES rapidcheck rapidcheck_gtest)
  endif()

  add_test(NAME structure.no_qt_in_logic
    COMMAND "${CMAKE_COMMAND}"
      "-DCXX=${CMAKE_CXX_COMPILER}"
      "-DINCLUDES=$<JOIN:$<TARGET_PROPERTY:zovin_logic,INCLUDE_DIRECTORIES>,|>"
      "-DSCRATCH=${test_scratch}"
      -P "${CMAKE_SOURCE_DIR}/cmake/no_qt_in_logic.cmake")
  set_tests_properties(structure.no_qt_in_logic PROPERTIES LABELS structure)
endif()

# The drawings that are kept are those that their scripts draw.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
  add_test(NAME structure.drawings
    COMMAND Python3::Interpreter "${CMAKE_SOURCE_DIR}/tools/draw_cards" --check)
  set_tests_properties(structure.drawings PROPERTIES LABELS structure TIMEOUT 60)
endif()

# The help: words that the dictionary knows, and the hand that it plays as the scenario plays it.
if(Python3_FOUND)
  foreach(proof spelling played_hand)
    add_test(NAME structure.help_${proof}
      COMMAND Python3::Interpreter "${CMAKE_SOURCE_DIR}/tests/help/${proof}.py" "${CMAKE_SOURCE_DIR}")
    set_tests_properties(structure.help_${proof} PROPERTIES LABELS structure TIMEOUT 60)
  endforeach()
endif()

# Real widgets, real events, no screen: one Qt Test program a file. Those that measure time have the machine to themselves.
set(gui_that_measure flight_test)
zovin_sources(gui_sources PATTERNS tests/gui/*_test.cpp)
if(gui_sources AND TARGET zovin_qt)
  find_package(Qt6 REQUIRED COMPONENTS Test)
  # What all of them stand on, compiled once.
  add_library(gui_ground OBJECT "${CMAKE_SOURCE_DIR}/tests/gui/all_games.cpp")
  target_link_libraries(gui_ground PUBLIC zovin_qt Qt6::Test)
  precompiled(gui_ground <QtTest> <QtWidgets>)
  foreach(source IN LISTS gui_sources)
    cmake_path(GET source STEM name)
    add_executable(gui_${name} "${source}")
    set_target_properties(gui_${name} PROPERTIES
      AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_link_libraries(gui_${name} PRIVATE gui_ground)
    precompiled(gui_${name} REUSE_FROM gui_ground)
    add_test(NAME gui.${name} COMMAND gui_${name} WORKING_DIRECTORY "${test_scratch}")
    set_tests_properties(gui.${name} PROPERTIES LABELS gui TIMEOUT 240 PROCESSORS 2
      ENVIRONMENT "${test_environment_offscreen}")
    if(name IN_LIST gui_that_measure)
      set_tests_properties(gui.${name} PROPERTIES RUN_SERIAL TRUE)
    endif()
  endforeach()
endif()

# golden_write plays every golden match and writes what it answers over what stood there.
add_custom_target(golden_write)
if(TARGET sonda)
  zovin_console_tests(scenario 60 tests/scenarios)
  zovin_console_tests(golden 300 tests/golden)
  file(GLOB_RECURSE golden_scripts "${CMAKE_SOURCE_DIR}/tests/golden/*.esc")
  foreach(script IN LISTS golden_scripts)
    add_custom_command(TARGET golden_write POST_BUILD VERBATIM
      COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen
        "${CMAKE_SOURCE_DIR}/tests/scenarios/run.sh" write $<TARGET_FILE:sonda> "${script}")
  endforeach()
  add_dependencies(golden_write sonda)
endif()

# The signatures of some thousand hands, a test for each line that is kept; golden_write writes them too.
if(TARGET simula)
  set(signatures "${CMAKE_SOURCE_DIR}/tests/golden/signatures")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${signatures}.txt")
  file(STRINGS "${signatures}.txt" lines)
  foreach(line IN LISTS lines)
    string(REGEX REPLACE ":.*" "" options "${line}")
    string(REGEX REPLACE "[ -]+" "_" name "${options}")
    separate_arguments(options)
    add_test(NAME golden.signature${name}
      COMMAND "${signatures}.sh" compare $<TARGET_FILE:simula> ${options})
    set_tests_properties(golden.signature${name} PROPERTIES LABELS golden TIMEOUT 300
      WORKING_DIRECTORY "${test_scratch}")
  endforeach()
  add_custom_command(TARGET golden_write POST_BUILD VERBATIM
    COMMAND "${signatures}.sh" write $<TARGET_FILE:simula>)
  add_dependencies(golden_write simula)
endif()
include("${CMAKE_SOURCE_DIR}/tests/golden/golden.cmake" OPTIONAL)

if(TARGET zovin)
  add_test(NAME structure.installed_files
    COMMAND "${CMAKE_COMMAND}" "-DBUILD=${CMAKE_BINARY_DIR}" "-DSCRATCH=${test_scratch}"
      "-DVERSION=${PROJECT_VERSION}" -P "${CMAKE_SOURCE_DIR}/cmake/installed_files.cmake")
  set_tests_properties(structure.installed_files PROPERTIES LABELS structure TIMEOUT 120
    ENVIRONMENT "${test_environment_offscreen}")
endif()

# The real program in a real window, each on a screen of its own, most of the time waiting for the table: four at once do not
# get in each other's way on two cores. They take longest and so begin first. Who counts wake-ups has the machine to itself.
if(TARGET zovin)
  # The same program, with the cards known that it will deal.
  add_executable(zovin_prepared platform/qt/app_main.cpp tests/e2e/prepared/chance.cpp)
  set_target_properties(zovin_prepared PROPERTIES
    AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
  target_compile_definitions(zovin_prepared PRIVATE ZOVIN_VERSION="${PROJECT_VERSION}")
  target_link_libraries(zovin_prepared PRIVATE zovin_qt)

  file(GLOB e2e_scripts CONFIGURE_DEPENDS
    "${CMAKE_SOURCE_DIR}/tests/e2e/*.sh" "${CMAKE_SOURCE_DIR}/tests/e2e/*.py")
  foreach(script IN LISTS e2e_scripts)
    cmake_path(GET script STEM name)
    add_test(NAME e2e.${name}
      COMMAND "${CMAKE_SOURCE_DIR}/cmake/under_xvfb.sh" "${script}")
    set_tests_properties(e2e.${name} PROPERTIES LABELS e2e TIMEOUT 600 COST 100
      WORKING_DIRECTORY "${test_scratch}"
      ENVIRONMENT "${test_environment}")
  endforeach()
  # The same, met through the accessibility bus alone.
  file(GLOB a11y_scripts CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/a11y/*.py")
  foreach(script IN LISTS a11y_scripts)
    cmake_path(GET script STEM name)
    add_test(NAME a11y.${name}
      COMMAND "${CMAKE_SOURCE_DIR}/cmake/under_xvfb.sh" "${script}")
    set_tests_properties(a11y.${name} PROPERTIES LABELS a11y TIMEOUT 240
      WORKING_DIRECTORY "${test_scratch}"
      ENVIRONMENT "${test_environment}")
  endforeach()
  set_tests_properties(e2e.idle_table PROPERTIES RUN_SERIAL TRUE)
  set_property(TEST e2e.small_screen APPEND PROPERTY ENVIRONMENT "ZOVIN_SCREEN=800x600")
  set_property(TEST e2e.screen_changes APPEND PROPERTY ENVIRONMENT "ZOVIN_SCREEN=1920x1080")
endif()
