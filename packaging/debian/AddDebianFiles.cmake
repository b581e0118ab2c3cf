# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
#
# Run by CPack over the files of the package before they are packed: makes its papers those that Debian wants to be there.
set(SHARE ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)

file(REMOVE_RECURSE ${SHARE}/doc/keyvora)
file(MAKE_DIRECTORY ${SHARE}/doc/keyvora ${SHARE}/lintian/overrides)
file(COPY_FILE ${CPACK_KEYVORA_DEBIAN_FILES}/copyright ${SHARE}/doc/keyvora/copyright)
file(COPY_FILE ${CPACK_KEYVORA_DEBIAN_FILES}/changelog ${SHARE}/doc/keyvora/changelog.Debian)
file(COPY_FILE ${CPACK_KEYVORA_DEBIAN_FILES}/lintian-overrides ${SHARE}/lintian/overrides/keyvora)

# Without a name and a time in them, the same input makes the same package.
file(GLOB_RECURSE PAGES ${SHARE}/man/*.1)
execute_process(COMMAND gzip --best --no-name --force ${SHARE}/doc/keyvora/changelog.Debian ${PAGES}
                COMMAND_ERROR_IS_FATAL ANY)
