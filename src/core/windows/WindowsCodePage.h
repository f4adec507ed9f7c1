// A code page of Windows, converted by the system.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace wheelwright {

// A byte that the system can't turn into a character and back again is shown as a character for
// private use, U+F0000 and the byte, and so survives both ways.
class WindowsCodePage {
 public:
  // The code page of that number, one whose first half is ASCII, such as 1252, 932 or 65001.
  explicit WindowsCodePage(unsigned number);

  std::string ToUnicode(std::string_view bytes) const;

  // A character that the code page lacks, and every byte that is no UTF-8, becomes "?".
  std::string FromUnicode(std::string_view utf8) const;

  // For each byte its lower-case letter, the byte itself if it is no capital letter or not a
  // character by itself.
  std::array<char, 256> LowerCaseTable() const;

 private:
  std::optional<char32_t> CharacterOf(std::string_view bytes) const;
  std::optional<std::string> BytesOf(char32_t character) const;
  char32_t Take(std::string_view& bytes) const;
  char LowerCaseOf(unsigned char byte) const;

  unsigned number_;
  // The characters of single bytes, where a byte is one.
  std::array<std::optional<char32_t>, 256> singles_;
};

}  // namespace wheelwright
