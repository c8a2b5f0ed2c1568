# cmake -DSONDA=... -DSCRIPT=... -DPICTURE=... -P table_picture.cmake
# Plays a script of the line console and leaves a picture of the table as it then stands.

file(READ "${SCRIPT}" commands)
set(played "${PICTURE}.esc")
file(WRITE "${played}" "${commands}pantalla ${PICTURE}\n")
execute_process(COMMAND "${SONDA}" INPUT_FILE "${played}" OUTPUT_VARIABLE answer RESULT_VARIABLE status)
file(REMOVE "${played}")
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${SCRIPT}: ${answer}")
endif()
