# Installs into a scratch folder and looks whether the installed table has all it needs: that the
# starter finds the program, and that what the build laid beside the program lies beside it there.

file(REMOVE_RECURSE "${SCRATCH}/installed")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${SCRATCH}/installed"
  RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the installation failed:\n${said}")
endif()

set(missing)
function(expect path)
  if(NOT EXISTS "${SCRATCH}/installed/${path}")
    set(missing ${missing} "${path}" PARENT_SCOPE)
  endif()
endfunction()

expect(bin/zovin)
expect(lib/zovin/zovin)
expect(lib/zovin/PkFDes.ZOV)
expect(lib/zovin/plugins/zovin_sound.so)
expect(share/applications/local.zovin.Zovin.desktop)
expect(share/metainfo/local.zovin.Zovin.metainfo.xml)
expect(share/icons/hicolor/scalable/apps/zovin.svg)
expect(share/man/man6/zovin.6)
expect(share/doc/zovin/copyright)
file(GLOB settings RELATIVE "${BUILD}/ajustes" "${BUILD}/ajustes/*.INI")
list(LENGTH settings how_many)
if(how_many LESS 2)
  message(FATAL_ERROR "no game's settings come with the program")
endif()
foreach(file IN LISTS settings)
  expect("lib/zovin/${file}")
endforeach()
file(GLOB beside RELATIVE "${BUILD}/bin"
  "${BUILD}/bin/*.bmp" "${BUILD}/bin/PkFDes.ZOV" "${BUILD}/bin/ayuda/*")
foreach(file IN LISTS beside)
  expect("lib/zovin/${file}")
endforeach()
if(missing)
  list(JOIN missing "\n  " missing)
  message(FATAL_ERROR "not installed:\n  ${missing}")
endif()

# They are as they were made, whatever was played beside the built program; and a second installation
# leaves a match that was played in the folder of the first one.
foreach(file IN LISTS settings)
  file(READ "${BUILD}/ajustes/${file}" made)
  file(READ "${SCRATCH}/installed/lib/zovin/${file}" found)
  if(NOT found STREQUAL made)
    message(FATAL_ERROR "${file} is installed other than it was made")
  endif()
endforeach()
list(GET settings 0 played)
file(WRITE "${SCRATCH}/installed/lib/zovin/${played}" "a match")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${SCRATCH}/installed"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(READ "${SCRATCH}/installed/lib/zovin/${played}" found)
if(NOT found STREQUAL "a match")
  message(FATAL_ERROR "a second installation writes over ${played}")
endif()

# Its version is what it tells without a window.
execute_process(COMMAND "${SCRATCH}/installed/bin/zovin" --version
  RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said TIMEOUT 20)
if(NOT status EQUAL 0 OR NOT said MATCHES "${VERSION}")
  message(FATAL_ERROR "the installed program does not start (${status}): ${said}")
endif()
