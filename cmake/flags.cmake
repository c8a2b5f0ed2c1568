# How every target of the project is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

# -Og keeps a debug build fast enough for thousands of played matches. NDEBUG is never defined:
# invariants hold in every build, also in the one that people play.
set(CMAKE_CXX_FLAGS_DEBUG "-Og -g")
# A run that nobody debugs does without: it is a quarter of its compiling. Failed tests and assertions tell their line all the
# same, and what runs under the sanitizers keeps those of its stacks.
if(DEFINED ENV{CI})
  set(CMAKE_CXX_FLAGS_DEBUG "-Og")
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2")
# The sanitizers and the fuzzers run on this one: -O1 would double the time that it takes to compile.
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-Og -g1")

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror=unused-result)

# What people play is the same to the bit wherever and whenever it is built: Qt's compiler of resources would write the
# date of each file.
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>"
  "$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>")
set_property(DIRECTORY PROPERTY RULE_LAUNCH_CUSTOM
  "${CMAKE_COMMAND} -E env QT_RCC_SOURCE_DATE_OVERRIDE=1")

# What ccache has to overlook so that a precompiled header does not put it out of work.
find_program(ZOVIN_CCACHE ccache)
if(ZOVIN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
    "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
    "${ZOVIN_CCACHE}")
endif()

# precompiled(TARGET HEADER...): the headers of libraries that nearly every file of the target reads. The sources
# include what they use all the same, so that a single file compiles alone and tidy reads it as it stands.
# precompiled(TARGET REUSE_FROM OTHER): those of another target that is compiled alike.
function(precompiled target)
  if("${ARGV1}" STREQUAL "REUSE_FROM")
    target_precompile_headers(${target} ${ARGN})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()
