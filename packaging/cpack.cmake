# `cpack -G DEB` in the build folder makes the Debian package from the
# installed tree (under /usr).
set(CPACK_PACKAGE_NAME partitude)
set(CPACK_PACKAGE_VENDOR "The Partitude team")
set(CPACK_PACKAGE_CONTACT "${PARTITUDE_MAINTAINER}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "fractions practice for school children")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.partitude.example/")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${PARTITUDE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Found by shlibdeps from the program's libraries, and besides: the screens'
# fonts, and Qt's SVG reader, a plug-in the program loads rather than links.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
# The first line of the package's description is the summary above.
# CPack indents the lines after the first.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Partitude teaches fractions to school children aged 6 to 11.
A child picks a school year, then an activity; practises with hints until a
run of right answers makes them ready for the Challenge; takes the Challenge
without hints; and prints a certificate with their name on it. Teachers
print ready-made worksheets.")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPack)
