# Debian has GoogleTest for its own system as a library and for all others as sources.
find_path(GTEST_SOURCES googletest/CMakeLists.txt
          PATHS /usr/src/googletest NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(GTest REQUIRED_VARS GTEST_SOURCES)

if(GTest_FOUND AND NOT TARGET GTest::gtest)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(${GTEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  foreach(LIBRARY gtest gtest_main)
    if(NOT TARGET GTest::${LIBRARY})
      add_library(GTest::${LIBRARY} ALIAS ${LIBRARY})
    endif()
  endforeach()
endif()
