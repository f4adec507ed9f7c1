# Run by CPack between laying out the files and packing them: takes away what Debian has itself, the texts of
# the licences and Qt's translations.
set(INSTALLED ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
file(GLOB PAPERS ${INSTALLED}/share/doc/wheelwright/*)
list(FILTER PAPERS INCLUDE REGEX "/(LICENSE|LGPL-3.0.txt|licences.md)$")
file(REMOVE_RECURSE ${PAPERS} ${INSTALLED}/lib/wheelwright/translations)
