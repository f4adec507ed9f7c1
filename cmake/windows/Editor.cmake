# What the editor is on Windows alone: a program without a console, in the code page that the user's
# system is set to, with version, icon and manifest inside.
enable_language(RC)
foreach(FILE rc manifest)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/wheelwright.${FILE}.in wheelwright.${FILE}
                 @ONLY)
endforeach()
set(RESOURCES ${CMAKE_CURRENT_BINARY_DIR}/wheelwright.rc)
set_source_files_properties(
  ${RESOURCES}
  PROPERTIES
    OBJECT_DEPENDS
    "${PROJECT_SOURCE_DIR}/packaging/wheelwright.ico;${CMAKE_CURRENT_BINARY_DIR}/wheelwright.manifest")
target_sources(wheelwright PRIVATE ${RESOURCES})
set_target_properties(wheelwright PROPERTIES WIN32_EXECUTABLE ON CODE_PAGE wheelwright-system-code-page)
