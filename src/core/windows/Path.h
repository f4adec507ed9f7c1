// Paths as Windows' own file functions take them.
#pragma once

#include <string>

namespace wheelwright {

// A UTF-8 path for the disk. One that is longer than 260 characters reaches the disk only when it
// is full, has no slashes and is marked by "\\?\" or "\\?\UNC\"; a shorter one stays as it is.
std::wstring DiskPath(const std::string& path);

}  // namespace wheelwright
