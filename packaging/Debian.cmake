# `cpack` (in a configured and built tree) makes the Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantor-recovery)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
# All that `cmake --install` brings, and what only the package has.
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${CMAKE_BINARY_DIR};${PROJECT_NAME};ALL;/;${CMAKE_BINARY_DIR};${PROJECT_NAME};debian;/")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Vantor Recovery maintainers <maintainers@vantor.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${VANTOR_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"recover photos, videos and files from memory cards
Vantor Recovery reads a memory card that no longer gives its files back sector
by sector, knows photos, videos and other files by the bytes that begin them,
shows what it finds as it finds it, and saves it. It needs no readable file
system on the card, never writes to it, and searches image files as well.

Files end where their own format says they end; pictures and movies from the
card are decoded in confined helper processes. The package holds the program
with its window, and vantor-recovery-cli for scripts and for machines without
a display.")

# Libraries are found by what the programs link. What is only loaded while they run stands here: pictures and
# icons that Qt decodes through plugins.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-image-formats-plugins, libqt6svg6")
# Cards are read without an administrator's rights through udisks2; folders are opened through xdg-utils; the
# desktop's thumbnail programs run inside bubblewrap, and not at all without it. The toolkit's own texts in other
# languages come with qt6-translations-l10n.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "bubblewrap, udisks2, xdg-utils, qt6-wayland, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gddrescue")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
