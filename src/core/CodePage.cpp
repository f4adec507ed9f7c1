#include "core/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace wheelwright {
namespace {

// The characters of the bytes 80 to 9F; all other bytes are the characters of the same number.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CharacterOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80U] : byte;
}

char ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
  if (found == kUpperControls.end()) return '?';
  return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

void AppendUtf8(std::string& out, char32_t character) {
  if (character < 0x80) {
    out += static_cast<char>(character);
  } else if (character < 0x800) {
    out += static_cast<char>(0xC0U | (character >> 6U));
    out += static_cast<char>(0x80U | (character & 0x3FU));
  } else {
    out += static_cast<char>(0xE0U | (character >> 12U));
    out += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
    out += static_cast<char>(0x80U | (character & 0x3FU));
  }
}

constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// Forms longer than needed, halves of a pair and numbers behind the last character aren't UTF-8.
bool IsCharacter(char32_t number, std::size_t length) {
  const bool tooLong = (length == 3 && number < 0x800) || (length == 4 && number < 0x10000);
  const bool halfOfPair = number >= 0xD800 && number <= 0xDFFF;
  return !tooLong && !halfOfPair && number <= 0x10FFFF;
}

// Takes one character off the front of the text; a byte that begins none is taken alone.
char32_t TakeCharacter(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || length > utf8.size()) {
    utf8.remove_prefix(1);
    return kNoCharacter;
  }
  char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if ((byte & 0xC0U) != 0x80U) {
      utf8.remove_prefix(1);
      return kNoCharacter;
    }
    character = (character << 6U) | (byte & 0x3FU);
  }
  if (!IsCharacter(character, length)) {
    utf8.remove_prefix(1);
    return kNoCharacter;
  }
  utf8.remove_prefix(length);
  return character;
}

}  // namespace

std::string ToUnicode(std::string_view codePageText) {
  std::string utf8;
  utf8.reserve(codePageText.size());
  for (const char byte : codePageText)
    AppendUtf8(utf8, CharacterOf(static_cast<unsigned char>(byte)));
  return utf8;
}

std::string FromUnicode(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes += ByteOf(TakeCharacter(utf8));
  return bytes;
}

}  // namespace wheelwright
