# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The Debian package. Comes last in the project, when all install rules are known.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/debian/changelog)
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/debian/changelog newest LIMIT_COUNT 1)
if(NOT newest MATCHES "^brenica \\(([0-9.]+)-([0-9]+)\\)" OR NOT CMAKE_MATCH_1 VERSION_EQUAL PROJECT_VERSION)
    message(FATAL_ERROR "packaging/debian/changelog does not begin with version ${PROJECT_VERSION}: ${newest}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME brenica)
set(CPACK_PACKAGE_VENDOR "The Brenica developers")
set(CPACK_PACKAGE_CONTACT "The Brenica developers <brenica@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plan the conservation of a landscape by a small suite of species")
set(CPACK_PACKAGE_DESCRIPTION
"Brenica helps a conservation planner to choose, for one landscape, the few
species whose needs cover it: where these live and what they require, the
rest of the landscape is cared for too.

The planner names candidate species, habitats, management zones, human
activities and ecological functions, and grades every species against them.
Brenica scores and ranks the species from these grades and picks the suite
step by step: the best species first, then the one that adds most of what is
still uncovered, asking the planner wherever scores lie too close together to
tell. Tables, charts and the resulting suite can be exported.

The package holds the desktop program, brenica-batch, which does the same
without a window, the guide, and example landscapes.")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/finish.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# A browser for the guide, and the dialogue for files that the other programs of the desktop show.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-gtk-platformtheme")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
