// The way of a Unicode text to Windows' own functions and back.
#pragma once

#include <string>
#include <string_view>

namespace wheelwright {

// What isn't Unicode becomes the replacement character, U+FFFD, in both directions.
std::wstring WideOf(std::string_view utf8);
std::string Utf8Of(std::wstring_view wide);

}  // namespace wheelwright
