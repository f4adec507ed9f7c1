# What the system wants to know of the program, where it looks for it: the entry of the menu, the icon,
# the entry of software catalogues, the man page, and the papers. For Windows, the papers alone.

# Installs a file packed by gzip, without a time of its own.
function(install_packed FILE NAME DESTINATION)
  set(PACKED ${CMAKE_BINARY_DIR}/packed/${NAME}.gz)
  install(CODE "file(MAKE_DIRECTORY \"${CMAKE_BINARY_DIR}/packed\")
    execute_process(COMMAND gzip -9nc \"${FILE}\" OUTPUT_FILE \"${PACKED}\" COMMAND_ERROR_IS_FATAL ANY)")
  install(FILES ${PACKED} DESTINATION ${DESTINATION})
endfunction()

# The paper in which Debian wants to read that there is a new release, and when.
function(write_debian_changelog FILE)
  file(STRINGS CHANGELOG.md RELEASE REGEX "^## .${PROJECT_VERSION}. - ")
  string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+" RELEASE_DAY "${RELEASE}")
  execute_process(COMMAND date --utc --rfc-email --date=${RELEASE_DAY} OUTPUT_VARIABLE RELEASE_DATE
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  configure_file(packaging/debian-changelog.in ${FILE} @ONLY)
endfunction()

if(WIN32)
  set(PAPERS licences)
else()
  set(PAPERS share/doc/wheelwright)
  set(DESKTOP_ID example.wheelwright.Wheelwright)
  install(FILES packaging/${DESKTOP_ID}.desktop DESTINATION share/applications)
  install(FILES packaging/${DESKTOP_ID}.metainfo.xml DESTINATION share/metainfo)
  install(FILES packaging/icons/wheelwright.svg DESTINATION share/icons/hicolor/scalable/apps)
  foreach(SIZE 16 24 32 48 64 128 256 512)
    install(FILES packaging/icons/wheelwright-${SIZE}.png
            DESTINATION share/icons/hicolor/${SIZE}x${SIZE}/apps RENAME wheelwright.png)
  endforeach()
  install_packed(${PROJECT_SOURCE_DIR}/packaging/wheelwright.1 wheelwright.1 share/man/man1)
  install_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog ${PAPERS})
  write_debian_changelog(${CMAKE_BINARY_DIR}/debian-changelog)
  install_packed(${CMAKE_BINARY_DIR}/debian-changelog changelog.Debian ${PAPERS})
  install(FILES packaging/copyright DESTINATION ${PAPERS})
  install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME wheelwright)
endif()

install(FILES packaging/licences/README.md DESTINATION ${PAPERS} RENAME licences.md)
install(FILES packaging/licences/LGPL-3.0.txt DESTINATION ${PAPERS})
if(NOT WIN32)
  install(FILES LICENSE DESTINATION ${PAPERS})
else()
  install(FILES LICENSE DESTINATION ${PAPERS} RENAME LICENSE.txt)
  install(FILES packaging/licences/Qt-third-party.txt packaging/licences/mingw-w64.txt
                packaging/licences/GCC-runtime-exception.txt DESTINATION ${PAPERS})
endif()
