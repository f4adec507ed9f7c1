// The code page: texts of files, tables and controls are bytes in Windows-1252; paths, settings,
// window titles and messages are Unicode, UTF-8 in memory. These two functions are the only bridge.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace wheelwright {

// UTF-8 for a text in the code page. The five bytes that the code page leaves undefined (81, 8D,
// 8F, 90, 9D) become the control characters of the same number, so every byte survives both ways.
std::string ToUnicode(std::string_view codePageText);

// The code page's bytes for a UTF-8 text. A character that the code page lacks, and every byte that
// is no UTF-8, becomes "?".
std::string FromUnicode(std::string_view utf8);

namespace codepage {

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

inline constexpr std::array<char, 256> kLowerCase = LowerCaseTable();

}  // namespace codepage

// The lower-case letter of a byte in the code page, the byte itself if it is no capital letter.
inline char FoldCase(char byte) { return codepage::kLowerCase[static_cast<unsigned char>(byte)]; }

}  // namespace wheelwright
