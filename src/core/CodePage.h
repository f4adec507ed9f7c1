// The code page: texts of files, tables and controls are bytes in it; paths, settings, window
// titles and messages are Unicode, UTF-8 in memory. Two functions are the only bridge.
//
// There are two code pages, and each program is linked with one of them: Windows-1252, and on
// Windows the system's own, which the editor takes there.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace wheelwright {

// UTF-8 for a text in the code page. Every byte survives both ways: the five that Windows-1252
// leaves undefined (81, 8D, 8F, 90, 9D) become the control characters of the same number, and those
// that the system's own can't read become characters for private use.
std::string ToUnicode(std::string_view codePageText);

// The code page's bytes for a UTF-8 text. A character that the code page lacks, and every byte that
// is no UTF-8, becomes "?".
std::string FromUnicode(std::string_view utf8);

namespace codepage {

// For each byte the one that FoldCase gives.
extern const std::array<char, 256> kLowerCase;

}  // namespace codepage

// The lower-case letter of a byte in the code page, the byte itself if it is no capital letter or
// not a character by itself.
inline char FoldCase(char byte) { return codepage::kLowerCase[static_cast<unsigned char>(byte)]; }

}  // namespace wheelwright
