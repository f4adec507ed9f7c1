// Windows-1252.
#include "core/CodePage.h"

#include "core/Utf8.h"

#include <algorithm>
#include <array>

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

constexpr std::array<char, 256> LowerCaseTable() {
  std::array<char, 256> table{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    const bool asciiCapital = byte >= 'A' && byte <= 'Z';
    const bool latinCapital = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    const bool caronOrLigature = byte == 0x8A || byte == 0x8C || byte == 0x8E;
    unsigned lower = byte;
    if (asciiCapital || latinCapital) lower = byte + 0x20;
    if (caronOrLigature) lower = byte + 0x10;
    if (byte == 0x9F) lower = 0xFF;
    table[byte] = static_cast<char>(lower);
  }
  return table;
}

}  // namespace

constexpr std::array<char, 256> codepage::kLowerCase = LowerCaseTable();

std::string ToUnicode(std::string_view codePageText) {
  std::string utf8;
  utf8.reserve(codePageText.size());
  for (const char byte : codePageText) AppendUtf8(utf8, CharacterOf(static_cast<unsigned char>(byte)));
  return utf8;
}

std::string FromUnicode(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes += ByteOf(TakeCharacter(utf8));
  return bytes;
}

}  // namespace wheelwright
