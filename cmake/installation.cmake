# What `cmake --install` and the Debian package lay down. Whoever starts an installed program cannot write where it lies:
# what it comes with stands in a data folder, from which each player's own folder is filled at the first start.

if(NOT TARGET zovin)
  return()
endif()

set(data_folder share/games/zovin)

install(TARGETS zovin sonda simula RUNTIME DESTINATION bin)
if(TARGET zovin_sound)
  install(TARGETS zovin_sound LIBRARY DESTINATION lib/zovin)
endif()
install(FILES ${decks} "${odds_table}" DESTINATION ${data_folder})
install(DIRECTORY "${pristine_settings}/" DESTINATION ${data_folder} FILES_MATCHING PATTERN "*.INI")
install(DIRECTORY assets/help/ DESTINATION ${data_folder}/ayuda PATTERN README.md EXCLUDE)

install(FILES packaging/org.example.zovin.desktop DESTINATION share/applications)
install(FILES packaging/org.example.zovin.metainfo.xml DESTINATION share/metainfo)
install(FILES assets/icon/zovin.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(size IN LISTS icon_sizes)
  install(FILES "${pictures}/zovin-${size}.png" RENAME zovin.png
    DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()

install(FILES packaging/zovin.6 packaging/sonda.6 packaging/simula.6 DESTINATION share/man/man6)
install(FILES packaging/copyright LEEME.md DESTINATION share/doc/zovin)
install(FILES CHANGELOG.md DESTINATION share/doc/zovin RENAME changelog)
install(FILES packaging/changelog.Debian DESTINATION share/doc/zovin)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "Zovin")
set(CPACK_PACKAGE_CONTACT "Zovin <zovin@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/packaging/debian_tree.cmake")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1~zovin1) # comes before any that Debian may make
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Póker, Black Jack, Tute, Brisca, Siete y media y Cinquillo contra una, dos o
tres sillas del ordenador, cada una con su nivel y su carácter. El tutor de
juego dice qué haría el ordenador en su lugar, la partida que se deja a
medias sigue donde estaba, y las terminadas quedan en un histórico.
.
Vienen también «sonda», una consola de líneas de la lógica de los juegos, y
«simula», que juega partidas a millares.
")
include(CPack)
