#include "core/Utf8.h"

namespace wheelwright {
namespace {

bool IsCharacter(char32_t number, std::size_t length) {
  const bool tooLong = (length == 3 && number < 0x800) || (length == 4 && number < 0x10000);
  const bool halfOfPair = number >= 0xD800 && number <= 0xDFFF;
  return !tooLong && !halfOfPair && number <= 0x10FFFF;
}

// The character in the first bytes of a text, kNoCharacter if they are none.
char32_t CharacterIn(std::string_view utf8, std::size_t length) {
  if (length == 0 || length > utf8.size()) return kNoCharacter;
  const auto lead = static_cast<unsigned char>(utf8.front());
  char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (const char next : utf8.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0U) != 0x80U) return kNoCharacter;
    character = (character << 6U) | (byte & 0x3FU);
  }
  return IsCharacter(character, length) ? character : kNoCharacter;
}

char Continuation(char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); }

}  // namespace

char32_t TakeCharacter(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  const char32_t character = CharacterIn(utf8, length);
  utf8.remove_prefix(character == kNoCharacter ? 1 : length);
  return character;
}

void AppendUtf8(std::string& out, char32_t character) {
  if (character < 0x80) {
    out += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    out += static_cast<char>(0xC0U | (character >> 6U));
  } else {
    if (character < 0x10000) {
      out += static_cast<char>(0xE0U | (character >> 12U));
    } else {
      out += static_cast<char>(0xF0U | (character >> 18U));
      out += Continuation(character >> 12U);
    }
    out += Continuation(character >> 6U);
  }
  out += Continuation(character);
}

}  // namespace wheelwright
