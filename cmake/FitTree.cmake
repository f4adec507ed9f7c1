# Run by CPack between laying out the files and packing them: takes away what only the other kind of
# package wants. Debian has the texts of the licences and Qt's translations itself, and its papers help nobody
# elsewhere.
file(GLOB_RECURSE PAPERS ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/share/doc/wheelwright/*
     ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/wheelwright/*)
if(CPACK_GENERATOR STREQUAL DEB)
  list(FILTER PAPERS INCLUDE REGEX "/(LICENSE|LGPL-3.0.txt|licences.md)$")
  file(REMOVE ${PAPERS})
  file(GLOB TRANSLATIONS ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/lib/wheelwright/translations)
  file(REMOVE_RECURSE ${TRANSLATIONS})
else()
  list(FILTER PAPERS INCLUDE REGEX "/(changelog.Debian.gz|copyright)$")
  file(REMOVE ${PAPERS})
  file(REMOVE_RECURSE ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/share/lintian)
endif()
