# The program looks beside itself for its language files, its pictures and its manual. So all of
# them go into one folder: the build folder while developing, a folder of the program's own when
# installed. A link in bin leads there; the program resolves it before it looks around.
include(GNUInstallDirs)

if(WIN32)
  set(PROGRAM_FOLDER .)
else()
  set(PROGRAM_FOLDER lib/wheelwright)
endif()

file(GLOB BESIDE_THE_PROGRAM CONFIGURE_DEPENDS language/*.lng manual/* gfx)
list(FILTER BESIDE_THE_PROGRAM EXCLUDE REGEX "/README\\.md$")

foreach(ENTRY IN LISTS BESIDE_THE_PROGRAM)
  get_filename_component(NAME ${ENTRY} NAME)
  file(CREATE_LINK ${ENTRY} ${CMAKE_BINARY_DIR}/${NAME} COPY_ON_ERROR SYMBOLIC)
  if(IS_DIRECTORY ${ENTRY})
    install(DIRECTORY ${ENTRY} DESTINATION ${PROGRAM_FOLDER})
  else()
    install(FILES ${ENTRY} DESTINATION ${PROGRAM_FOLDER})
  endif()
endforeach()

# What Qt itself says, in every language that it speaks: a package of its own on Debian.
find_path(QT_TRANSLATIONS qtbase_de.qm PATHS /usr PATH_SUFFIXES share/qt6/translations NO_CMAKE_FIND_ROOT_PATH)
file(GLOB TRANSLATIONS ${QT_TRANSLATIONS}/qtbase_*.qm)
install(FILES ${TRANSLATIONS} DESTINATION ${PROGRAM_FOLDER}/translations)
install(DIRECTORY samples DESTINATION ${PROGRAM_FOLDER})

if(WHEELWRIGHT_EDITOR)
  install(TARGETS wheelwright RUNTIME DESTINATION ${PROGRAM_FOLDER})
  if(NOT WIN32)
    file(RELATIVE_PATH FROM_BIN /${CMAKE_INSTALL_BINDIR} /${PROGRAM_FOLDER}/wheelwright)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/link)
    file(CREATE_LINK ${FROM_BIN} ${CMAKE_BINARY_DIR}/link/wheelwright SYMBOLIC)
    install(FILES ${CMAKE_BINARY_DIR}/link/wheelwright DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endif()

include(cmake/Desktop.cmake)
include(cmake/Package.cmake)
