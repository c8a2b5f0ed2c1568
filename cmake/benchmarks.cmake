# One Google Benchmark program a file; under ctest each runs briefly, to prove that it still runs.

zovin_sources(bench_sources PATTERNS bench/*_bench.cpp)
if(bench_sources AND TARGET zovin_logic)
  find_package(benchmark REQUIRED)
  foreach(source IN LISTS bench_sources)
    cmake_path(GET source STEM name)
    add_executable(${name} "${source}")
    target_link_libraries(${name} PRIVATE zovin_logic benchmark::benchmark benchmark::benchmark_main)
    foreach(library zovin_simula zovin_qt)
      if(TARGET ${library})
        target_link_libraries(${name} PRIVATE ${library})
      endif()
    endforeach()
    add_test(NAME bench.${name} COMMAND ${name} --benchmark_min_time=0.01)
    set_tests_properties(bench.${name} PROPERTIES LABELS bench RUN_SERIAL TRUE TIMEOUT 600
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  endforeach()
endif()
