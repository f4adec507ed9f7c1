// Unicode in bytes, a character at a time.
#pragma once

#include <string>
#include <string_view>

namespace wheelwright {

inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// Takes one character off the front of a UTF-8 text that isn't empty. A byte that begins none is
// taken alone and gives kNoCharacter; forms longer than needed, halves of a pair and numbers behind
// the last character aren't UTF-8.
char32_t TakeCharacter(std::string_view& utf8);

void AppendUtf8(std::string& out, char32_t character);

}  // namespace wheelwright
