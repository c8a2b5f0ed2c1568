# What the suite and the run under the sanitizers share: how a test of each kind is made, and what it stands on.

include(GoogleTest)

set(test_scratch "${CMAKE_BINARY_DIR}/scratch")
file(MAKE_DIRECTORY "${test_scratch}")

# Where a test finds the checkout and the programs, and which leaks of the system's own libraries
# the sanitizer lets pass.
set(test_environment
  "ZOVIN_SOURCE=${CMAKE_SOURCE_DIR}"
  "ZOVIN_BIN=${CMAKE_BINARY_DIR}/bin"
  "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/known_leaks.txt:print_suppressions=0")
set(test_environment_offscreen ${test_environment} "QT_QPA_PLATFORM=offscreen")

# Tests count cards and seats in plain numbers; Clang, unlike GCC, takes each of them as an index for a change of sign.
function(zovin_plain_numbers target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(${target} PRIVATE -Wno-sign-conversion)
  endif()
endfunction()

# One GoogleTest program over all files of a kind, each of its cases a test of its own.
function(zovin_gtest name label)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "EXCLUDE;TIMEOUT" "PATTERNS;LIBRARIES")
  zovin_sources(sources PATTERNS ${arg_PATTERNS} EXCLUDE "${arg_EXCLUDE}")
  if(NOT sources OR NOT TARGET zovin_logic)
    return()
  endif()
  add_executable(${name} ${sources} "${CMAKE_SOURCE_DIR}/tests/support/all_games.cpp")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${test_libraries} ${arg_LIBRARIES}
    GTest::gtest GTest::gmock GTest::gtest_main)
  zovin_plain_numbers(${name})
  # A line of a failed test is all that is looked up in them: the rest would be a third of their time in the compiler.
  if(NOT DEFINED ENV{CI})
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-g1>)
  endif()
  precompiled(${name} <gmock/gmock.h> <gtest/gtest.h> <fmt/format.h>)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${label}." WORKING_DIRECTORY "${test_scratch}"
    PROPERTIES LABELS ${label} TIMEOUT ${arg_TIMEOUT}
               ENVIRONMENT "${test_environment}")
endfunction()

# Text in, text out, through the line console.
function(zovin_console_tests label timeout folder)
  cmake_parse_arguments(PARSE_ARGV 3 arg "" "EXCLUDE" "")
  zovin_sources(scripts PATTERNS ${folder}/**/*.esc EXCLUDE "${arg_EXCLUDE}")
  foreach(script IN LISTS scripts)
    cmake_path(RELATIVE_PATH script BASE_DIRECTORY "${CMAKE_SOURCE_DIR}/${folder}"
      OUTPUT_VARIABLE name)
    string(REGEX REPLACE "\\.esc$" "" name "${name}")
    add_test(NAME ${label}.${name}
      COMMAND "${CMAKE_SOURCE_DIR}/tests/scenarios/run.sh" compare $<TARGET_FILE:sonda> "${script}")
    set_tests_properties(${label}.${name} PROPERTIES LABELS ${label} TIMEOUT ${timeout}
      WORKING_DIRECTORY "${test_scratch}" ENVIRONMENT "${test_environment_offscreen}")
  endforeach()
endfunction()

if(TARGET zovin_logic)
  find_package(GTest REQUIRED)
  set(test_libraries zovin_logic)
  foreach(library zovin_sonda zovin_simula zovin_draw_odds zovin_default_settings)
    if(TARGET ${library})
      list(APPEND test_libraries ${library})
    endif()
  endforeach()

  # Makers of cards, seats and tables that several kinds of test share.
  zovin_sources(support_sources PATTERNS tests/support/*.cpp EXCLUDE "/all_games\\.cpp$")
  if(support_sources)
    add_library(test_support STATIC ${support_sources})
    target_link_libraries(test_support PUBLIC ${test_libraries} GTest::gtest GTest::gmock)
    zovin_plain_numbers(test_support)
    list(PREPEND test_libraries test_support)
  endif()
endif()
