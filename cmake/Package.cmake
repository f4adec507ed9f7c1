# The package for Debian that scripts/package makes.
if(WIN32)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wheelwright)
set(CPACK_PACKAGE_VENDOR "Wheelwright project")
set(CPACK_PACKAGE_CONTACT "Wheelwright project <project@wheelwright.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://wheelwright.example/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for the vehicle data of GTA3 and GTAViceCity")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/dist)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/FitTree.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-translations-l10n)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Wheelwright opens handling.cfg, default.ide or carcols.dat of the PC versions
of these games, shows one vehicle at a time as a form, and writes the file
back. All values stay the text that stood in the file, and lines that aren't
the program's own stay where they are.
.
It comes with a manual in German and English, captions in seven languages and
made-up samples, and needs no game.")

include(CPack)
