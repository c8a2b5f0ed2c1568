# cmake -DSONDA=... -DSCRIPT=... -DPICTURE=... -P table_picture.cmake
# Plays a script of the line console and leaves a picture of the table as it then stands, with two pixels for each of the
# table's, so that it is as sharp where the help is shown larger.

file(READ "${SCRIPT}" commands)
set(played "${PICTURE}.esc")
file(WRITE "${played}" "${commands}pantalla ${PICTURE}\n")
execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_SCALE_FACTOR=2 "${SONDA}"
  INPUT_FILE "${played}" OUTPUT_VARIABLE answer RESULT_VARIABLE status)
file(REMOVE "${played}")
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${SCRIPT}: ${answer}")
endif()
