# Run by CPack over the tree that it is about to pack: what Debian wants beyond an installation. Games in a place of
# their own, compressed pages and changelogs, what the programs need of the libraries that they were linked with, and,
# where SOURCE_DATE_EPOCH is set, that time for every file.

set(root "${CPACK_TEMPORARY_DIRECTORY}")

# As far from the data as before.
file(RENAME "${root}/usr/bin" "${root}/usr/games")

file(GLOB pages "${root}/usr/share/man/man*/*" "${root}/usr/share/doc/zovin/changelog*")
execute_process(COMMAND gzip -9nf ${pages} COMMAND_ERROR_IS_FATAL ANY)

# The table plays without sound: only what the programs themselves were linked with is needed. dpkg-shlibdeps wants to
# stand in a source package, and to see a package under way.
set(scratch "${root}-needs")
file(REMOVE_RECURSE "${scratch}")
file(WRITE "${scratch}/debian/control" "Source: zovin\n\nPackage: zovin\nArchitecture: any\n")
file(MAKE_DIRECTORY "${root}/DEBIAN")
file(GLOB programs "${root}/usr/games/*")
file(GLOB plugins "${root}/usr/lib/zovin/*.so")
execute_process(
  COMMAND dpkg-shlibdeps -O -dRecommends ${plugins} -dDepends ${programs}
  WORKING_DIRECTORY "${scratch}" OUTPUT_VARIABLE needs COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE "${scratch}" "${root}/DEBIAN")
string(REGEX MATCH "shlibs:Depends=([^\n]*)" found "${needs}")
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${CMAKE_MATCH_1}")
string(REGEX MATCH "shlibs:Recommends=([^\n]*)" found "${needs}")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "${CMAKE_MATCH_1}, fonts-dejavu-core, qt6-translations-l10n, qt6-wayland")

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND find "${root}" -exec touch -hd "@$ENV{SOURCE_DATE_EPOCH}" {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
