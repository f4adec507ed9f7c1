// The way of a Unicode text to Windows' own functions and back, and of a path to those of the disk.
#pragma once

#include <string>
#include <string_view>

namespace wheelwright {

// What isn't Unicode becomes the replacement character, U+FFFD, in both directions.
std::wstring WideOf(std::string_view utf8);
std::string Utf8Of(std::wstring_view wide);

// A UTF-8 path for the disk. One that is longer than 260 characters reaches the disk only when it
// is full, has no slashes and is marked by "\\?\" or "\\?\UNC\"; a shorter one stays as it is.
std::wstring DiskPath(const std::string& path);

}  // namespace wheelwright
