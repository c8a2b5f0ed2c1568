# What runs under Clang's sanitizers every day: the fuzzers, the scenarios, and the unit tests of
# what reads text, files and money. One build serves all of it, for compiling is what takes long; so
# it leaves Qt out, and with it the one scenario that paints.
#
# One libFuzzer program a file. Its kept corpus is tests/fuzz/corpus/<name>; what a run finds goes
# to the build folder, so that a run changes nothing in the checkout.

if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "the fuzzers need Clang: cmake --preset fuzz")
endif()

zovin_sources(fuzz_sources PATTERNS tests/fuzz/*_fuzz.cpp)
add_custom_target(fuzzers)
if(fuzz_sources AND TARGET zovin_logic)
  foreach(source IN LISTS fuzz_sources)
    cmake_path(GET source STEM file_name)
    string(REGEX REPLACE "_fuzz$" "" name "${file_name}")
    add_executable(${file_name} "${source}")
    add_dependencies(fuzzers ${file_name})
    target_link_libraries(${file_name} PRIVATE zovin_logic)
    if(TARGET zovin_sonda)
      target_link_libraries(${file_name} PRIVATE zovin_sonda)
    endif()
    target_link_options(${file_name} PRIVATE -fsanitize=fuzzer)
    set(found "${CMAKE_BINARY_DIR}/corpus/${name}")
    file(MAKE_DIRECTORY "${found}")
    set(kept)
    if(IS_DIRECTORY "${CMAKE_SOURCE_DIR}/tests/fuzz/corpus/${name}")
      set(kept "${CMAKE_SOURCE_DIR}/tests/fuzz/corpus/${name}")
    endif()
    math(EXPR patience "${ZOVIN_FUZZ_SECONDS} + 120")
    add_test(NAME fuzz.${name} COMMAND ${file_name}
      -max_total_time=${ZOVIN_FUZZ_SECONDS} -timeout=10 -print_final_stats=1
      "-artifact_prefix=${CMAKE_BINARY_DIR}/corpus/${name}-" "${found}" ${kept})
    set_tests_properties(fuzz.${name} PROPERTIES LABELS fuzz TIMEOUT ${patience})
  endforeach()
endif()

include(test_kinds)
if(TARGET zovin_logic)
  zovin_gtest(sample_tests sample EXCLUDE "_slow_test\\.cpp$" TIMEOUT 120
    PATTERNS tests/unit/core/*_test.cpp tests/unit/betting/*_test.cpp tests/unit/storage/*_test.cpp)
endif()
if(TARGET sonda)
  zovin_console_tests(scenario 120 tests/scenarios EXCLUDE "/console/picture\\.esc$")
endif()
