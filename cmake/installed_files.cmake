# Installs into a scratch folder and looks whether the installed table has all it needs: that its programs find their
# files, and that what the build laid beside the programs lies in their data folder there.

set(prefix "${SCRATCH}/installed")
set(data "${prefix}/share/games/zovin")

file(REMOVE_RECURSE "${prefix}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}"
  RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the installation failed:\n${said}")
endif()

set(missing)
function(expect path)
  if(NOT EXISTS "${prefix}/${path}")
    set(missing ${missing} "${path}" PARENT_SCOPE)
  endif()
endfunction()

foreach(program zovin sonda simula)
  expect(bin/${program})
  expect(share/man/man6/${program}.6)
endforeach()
expect(lib/zovin/zovin_sound.so)
expect(share/applications/org.example.zovin.desktop)
expect(share/metainfo/org.example.zovin.metainfo.xml)
expect(share/icons/hicolor/scalable/apps/zovin.svg)
foreach(size 16 32 48 128 256)
  expect(share/icons/hicolor/${size}x${size}/apps/zovin.png)
endforeach()
foreach(paper copyright changelog changelog.Debian LEEME.md)
  expect(share/doc/zovin/${paper})
endforeach()
file(GLOB settings RELATIVE "${BUILD}/ajustes" "${BUILD}/ajustes/*.INI")
list(LENGTH settings how_many)
if(how_many LESS 2)
  message(FATAL_ERROR "no game's settings come with the program")
endif()
file(GLOB_RECURSE beside RELATIVE "${BUILD}/bin"
  "${BUILD}/bin/*.bmp" "${BUILD}/bin/PkFDes.ZOV" "${BUILD}/bin/ayuda/*")
list(FILTER beside EXCLUDE REGEX "/README\\.md$")
foreach(file IN LISTS settings beside)
  expect("share/games/zovin/${file}")
endforeach()
if(missing)
  list(JOIN missing "\n  " missing)
  message(FATAL_ERROR "not installed:\n  ${missing}")
endif()

# They are as they were made, whatever was played beside the built program.
foreach(file IN LISTS settings)
  file(READ "${BUILD}/ajustes/${file}" made)
  file(READ "${data}/${file}" found)
  if(NOT found STREQUAL made)
    message(FATAL_ERROR "${file} is installed other than it was made")
  endif()
endforeach()

# installed(INPUT WORDS...): runs an installed program in a home that nobody has lived in; what it says is in `said`.
set(home "${SCRATCH}/installed-home")
function(installed input program)
  file(REMOVE_RECURSE "${home}")
  file(WRITE "${home}/input" "${input}")
  execute_process(COMMAND "${CMAKE_COMMAND}" -E env "HOME=${home}" --unset=XDG_DATA_HOME
      "${prefix}/bin/${program}" ${ARGN}
    INPUT_FILE "${home}/input" WORKING_DIRECTORY "${home}"
    RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said TIMEOUT 60)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "the installed ${program} fails (${status}): ${said}")
  endif()
  set(said "${said}" PARENT_SCOPE)
endfunction()

# Its version is what it tells without a window.
installed("" zovin --version)
if(NOT said MATCHES "${VERSION}")
  message(FATAL_ERROR "the installed program tells another version: ${said}")
endif()

# The tools read the same data: the odds of Póker, and the decks for a picture.
installed("juego 1\npantalla mesa.png\n" sonda)
if(NOT EXISTS "${home}/mesa.png")
  message(FATAL_ERROR "the installed sonda paints no table: ${said}")
endif()
installed("" simula --juego 1 --partidas 2)
if(NOT said MATCHES "partidas 2")
  message(FATAL_ERROR "the installed simula plays no matches: ${said}")
endif()

# None of that makes a folder for the player: only a table that is opened does.
if(EXISTS "${home}/.local")
  message(FATAL_ERROR "a program without a table has left files in the home folder")
endif()
