# What a desktop and a packager expect of a program, beside the program and its
# own files, and the Debian package: cpack -G DEB in the build folder.
if(NOT UNIX OR APPLE)
  return()
endif()
include(GNUInstallDirs)

# When this version was released: the documents and the packages tell it.
set(CPACK_TORVENHALL_RELEASED 1795435200)
set(now $ENV{SOURCE_DATE_EPOCH})
set(ENV{SOURCE_DATE_EPOCH} ${CPACK_TORVENHALL_RELEASED})
string(TIMESTAMP released_day "%Y-%m-%d" UTC)
string(TIMESTAMP released_time "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(ENV{SOURCE_DATE_EPOCH} ${now})

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(filled ${PROJECT_BINARY_DIR}/packaging)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(form org.example.torvenhall.metainfo.xml man/torvenhall.6 man/torvenhall.ru.6 deb/changelog)
  configure_file(${packaging}/${form}.in ${filled}/${form} @ONLY)
endforeach()

install(FILES ${filled}/org.example.torvenhall.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/torvenhall.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES ${PROJECT_SOURCE_DIR}/assets/icon/icon-${size}.png
    DESTINATION ${icons}/${size}x${size}/apps RENAME torvenhall.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/assets/icon/icon.svg
  DESTINATION ${icons}/scalable/apps RENAME torvenhall.svg)
install(FILES ${filled}/man/torvenhall.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${filled}/man/torvenhall.ru.6
  DESTINATION ${CMAKE_INSTALL_MANDIR}/ru/man6 RENAME torvenhall.6)
install(FILES ${packaging}/torvenhall.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME torvenhall)
install(FILES ${packaging}/deb/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME changelog)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "The Torvenhall developers")
set(CPACK_PACKAGE_CONTACT "The Torvenhall developers <developers@torvenhall.example.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://torvenhall.example.org/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "life simulation in Russian, from fifteen dollars to the boss")
set(CPACK_DEBIAN_CHANGELOG ${filled}/deb/changelog)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${packaging}/deb/arrange.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The desktop opens texts with the one, and the toolkit's own words are in the other.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A life begins on the first of January 2001 with fifteen dollars, no job, no
diploma and no computer. Eat, keep well, keep smiling, study, change one job
for a better one, and put the computer of your dreams together part by part,
while the clock runs and thieves, viruses, children and taxes come by.
.
The game is in Russian. There are three difficulties, one way to win and
three to die.")
include(CPack)
