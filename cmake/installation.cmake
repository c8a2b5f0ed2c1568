# What `cmake --install` and the Debian package lay down. The program and what it reads stay in one
# folder, as in the build, so that it finds its files beside itself in either place.

if(NOT TARGET zovin)
  return()
endif()

set(program_folder lib/zovin)

install(TARGETS zovin RUNTIME DESTINATION ${program_folder})
if(TARGET zovin_sound)
  install(TARGETS zovin_sound LIBRARY DESTINATION ${program_folder}/plugins)
endif()
install(PROGRAMS packaging/zovin.sh DESTINATION bin RENAME zovin)
install(DIRECTORY assets/help/ DESTINATION ${program_folder}/ayuda)
install(FILES assets/tables/PkFDes.ZOV DESTINATION ${program_folder})

install(FILES packaging/local.zovin.Zovin.desktop DESTINATION share/applications)
install(FILES packaging/local.zovin.Zovin.metainfo.xml DESTINATION share/metainfo)
install(FILES packaging/zovin.6 DESTINATION share/man/man6)
install(FILES LICENSE DESTINATION share/doc/zovin RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "the founders of the table")
set(CPACK_PACKAGE_CONTACT "the founders of the table <table@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland")
include(CPack)
