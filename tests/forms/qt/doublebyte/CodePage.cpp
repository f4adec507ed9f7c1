// A code page in which a character has one byte or two, as some of Windows' have: ASCII, and the
// Japanese letters of U+3041 to U+3093 as the byte 82 and one from 9F on.
#include "core/CodePage.h"

#include "core/Utf8.h"

namespace wheelwright {
namespace {

constexpr char kLead = '\x82';
constexpr unsigned kFirstTrail = 0x9F;
constexpr char32_t kFirstLetter = 0x3041;
constexpr char32_t kLastLetter = 0x3093;

// The character at the start of a text, which is cut off.
char32_t Take(std::string_view& bytes) {
  const bool isPair = bytes.size() > 1 && bytes.front() == kLead;
  const auto last = static_cast<unsigned char>(bytes[isPair ? 1 : 0]);
  bytes.remove_prefix(isPair ? 2 : 1);
  return isPair ? kFirstLetter + (last - kFirstTrail) : last;
}

constexpr std::array<char, 256> LowerCaseTable() {
  std::array<char, 256> table{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    table[byte] = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 0x20 : byte);
  }
  return table;
}

}  // namespace

constexpr std::array<char, 256> codepage::kLowerCase = LowerCaseTable();

std::string ToUnicode(std::string_view codePageText) {
  std::string utf8;
  while (!codePageText.empty()) AppendUtf8(utf8, Take(codePageText));
  return utf8;
}

std::string FromUnicode(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t character = TakeCharacter(utf8);
    const bool isLetter = character >= kFirstLetter && character <= kLastLetter;
    if (isLetter) bytes += kLead;
    if (isLetter) bytes += static_cast<char>(kFirstTrail + (character - kFirstLetter));
    if (!isLetter) bytes += character < 0x80 ? static_cast<char>(character) : '?';
  }
  return bytes;
}

}  // namespace wheelwright
