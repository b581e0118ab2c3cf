# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
#
# The Debian package: run cpack in the folder of a build.

# What the program loads while it runs is in the same list as what `run` installs; the libraries among it are left
# to dpkg-shlibdeps, which knows their versions.
set(PACKAGE_LIST ${PROJECT_SOURCE_DIR}/scripts/packages)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PACKAGE_LIST})
file(STRINGS ${PACKAGE_LIST} RUN_PACKAGES REGEX "^run ")
list(TRANSFORM RUN_PACKAGES REPLACE "^run +" "")
list(FILTER RUN_PACKAGES EXCLUDE REGEX "^lib.*[0-9]$")
list(JOIN RUN_PACKAGES ", " RUN_PACKAGES)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME keyvora)
set(CPACK_PACKAGE_CONTACT "The Keyvora developers <developers@${KEYVORA_DOMAIN}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${KEYVORA_DOMAIN}/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "learn and look up keyboard shortcuts")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
Keyvora rests in the tray, knows which application is in front, and opens a
library of keyboard shortcuts, in English and in Czech, to browse, search and
mark as favourites.
.
It imports the shortcuts that applications show in their menus, and tells the
keys of a command that was chosen with the mouse. A daily lesson, a quiz, a
visual keyboard and printed cheat sheets help to learn them.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_PREFIX /usr)
# Files that hold a path are told the one that they will have on the target.
set(CPACK_SET_DESTDIR ON)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${KEYVORA_BUILD})
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The print system's library is loaded by name, which dpkg-shlibdeps does not see.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${RUN_PACKAGES}, libcups2")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "default-dbus-session-bus | dbus-session-bus, gsettings-desktop-schemas")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups-client, libproxy1-plugin-gsettings | libproxy1-plugin-kconfig, xdg-desktop-portal")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# What Debian wants beside the program is added to the files of the package by a script of its own.
set(PACKAGE_VERSION ${PROJECT_VERSION}-${KEYVORA_BUILD})
file(READ ${PROJECT_SOURCE_DIR}/LICENSE EXPAT_TEXT)
string(FIND "${EXPAT_TEXT}" "Permission is" BEGIN)
string(SUBSTRING "${EXPAT_TEXT}" ${BEGIN} -1 EXPAT_TEXT)
string(STRIP "${EXPAT_TEXT}" EXPAT_TEXT)
string(REPLACE "\n\n" "\n.\n" EXPAT_TEXT "${EXPAT_TEXT}")
string(REPLACE "\n" "\n " EXPAT_TEXT " ${EXPAT_TEXT}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in debian/changelog @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright.in debian/copyright @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/lintian-overrides debian/lintian-overrides COPYONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/AddDebianFiles.cmake)
set(CPACK_KEYVORA_DEBIAN_FILES ${CMAKE_CURRENT_BINARY_DIR}/debian)

include(CPack)
