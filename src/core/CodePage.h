// The code page: texts of files, tables and controls are bytes in Windows-1252; paths, settings,
// window titles and messages are Unicode, UTF-8 in memory. These two functions are the only bridge.
#pragma once

#include <string>
#include <string_view>

namespace wheelwright {

// UTF-8 for a text in the code page. The five bytes that the code page leaves undefined (81, 8D,
// 8F, 90, 9D) become the control characters of the same number, so every byte survives both ways.
std::string ToUnicode(std::string_view codePageText);

// The code page's bytes for a UTF-8 text. A character that the code page lacks, and every byte that
// is no UTF-8, becomes "?".
std::string FromUnicode(std::string_view utf8);

// The lower-case letter of a byte in the code page, the byte itself if it is no capital letter.
char FoldCase(char byte);

}  // namespace wheelwright
