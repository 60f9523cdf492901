# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Run by CPack on the installed files before it packs them: what Debian alone wants.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
set(doc ${share}/doc/${CPACK_PACKAGE_NAME})

configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright ${doc}/copyright COPYONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog ${doc}/changelog.Debian COPYONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/lintian-overrides ${share}/lintian/overrides/${CPACK_PACKAGE_NAME} COPYONLY)
file(GLOB pages ${share}/man/man1/*.1)
execute_process(COMMAND gzip -9nf ${pages} ${doc}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE files ${doc}/* ${share}/lintian/* ${share}/man/*)
file(CHMOD ${files} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
