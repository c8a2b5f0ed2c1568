# With the include path of zovin_logic a file of the project compiles and one that asks for Qt does
# not. The first half keeps the second from passing for a wrong reason.

string(REPLACE "|" ";" include_list "${INCLUDES}")
set(flags -std=c++20 -fsyntax-only)
foreach(directory IN LISTS include_list)
  list(APPEND flags "-I${directory}")
endforeach()

set(plain "${SCRATCH}/logic_probe_plain.cpp")
set(with_qt "${SCRATCH}/logic_probe_qt.cpp")
file(WRITE "${plain}" "#include <fmt/core.h>\n#include <string>\nint main() { return 0; }\n")
file(WRITE "${with_qt}" "#include <QString>\nint main() { return 0; }\n")

execute_process(COMMAND "${CXX}" ${flags} "${plain}" RESULT_VARIABLE status ERROR_VARIABLE said)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "a plain file does not compile with the flags of zovin_logic:\n${said}")
endif()
execute_process(COMMAND "${CXX}" ${flags} "${with_qt}" RESULT_VARIABLE status ERROR_VARIABLE said)
if(status EQUAL 0)
  message(FATAL_ERROR "zovin_logic sees the headers of Qt: ${INCLUDES}")
endif()
if(NOT said MATCHES "QString")
  message(FATAL_ERROR "the compiler failed for another reason:\n${said}")
endif()
