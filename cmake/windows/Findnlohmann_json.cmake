# The headers of nlohmann-json are the same for every system, but the folder they lie in on Debian has
# this machine's own headers too, which a cross-compiler must not see. So they alone are taken.
find_path(NLOHMANN_HEADERS nlohmann/json.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(nlohmann_json REQUIRED_VARS NLOHMANN_HEADERS)

if(nlohmann_json_FOUND AND NOT TARGET nlohmann_json::nlohmann_json)
  set(ALONE ${CMAKE_BINARY_DIR}/headers)
  file(MAKE_DIRECTORY ${ALONE})
  file(CREATE_LINK ${NLOHMANN_HEADERS}/nlohmann ${ALONE}/nlohmann SYMBOLIC)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
  target_include_directories(nlohmann_json::nlohmann_json INTERFACE ${ALONE})
endif()
