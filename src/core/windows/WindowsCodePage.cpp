#include "core/windows/WindowsCodePage.h"

#include "core/Utf8.h"
#include "core/windows/WideText.h"

#include <windows.h>

namespace wheelwright {
namespace {

constexpr char32_t kStandIns = 0xF0000;
constexpr std::size_t kLongestCharacter = 4;

bool IsStandIn(char32_t character) { return character >= kStandIns + 0x80 && character <= kStandIns + 0xFF; }

wchar_t LowerCaseOf(wchar_t letter) {
  wchar_t lower = letter;
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, &letter, 1, &lower, 1, nullptr, nullptr, 0);
  return lower;
}

}  // namespace

WindowsCodePage::WindowsCodePage(unsigned number) : number_(number) {
  for (std::size_t i = 0; i < singles_.size(); ++i) {
    const char byte = static_cast<char>(i);
    singles_[i] = i < 0x80 ? static_cast<char32_t>(i) : CharacterOf({&byte, 1});
  }
}

// The one character that the bytes stand for, if it has no other bytes.
std::optional<char32_t> WindowsCodePage::CharacterOf(std::string_view bytes) const {
  std::array<wchar_t, kLongestCharacter> wide{};
  const int count =
      MultiByteToWideChar(number_, MB_ERR_INVALID_CHARS, bytes.data(), static_cast<int>(bytes.size()),
                          wide.data(), static_cast<int>(wide.size()));
  if (count < 1) return std::nullopt;
  const std::string utf8 = Utf8Of({wide.data(), static_cast<std::size_t>(count)});
  std::string_view rest = utf8;
  const char32_t character = TakeCharacter(rest);
  if (!rest.empty() || IsStandIn(character) || BytesOf(character) != bytes) return std::nullopt;
  return character;
}

std::optional<std::string> WindowsCodePage::BytesOf(char32_t character) const {
  if (character < 0x80) return std::string(1, static_cast<char>(character));
  std::string utf8;
  AppendUtf8(utf8, character);
  if (number_ == CP_UTF8) return utf8;
  const std::wstring wide = WideOf(utf8);
  std::array<char, kLongestCharacter> bytes{};
  BOOL isLacking = FALSE;
  const int count =
      WideCharToMultiByte(number_, WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
                          bytes.data(), static_cast<int>(bytes.size()), nullptr, &isLacking);
  if (count < 1 || isLacking != FALSE) return std::nullopt;
  return std::string(bytes.data(), static_cast<std::size_t>(count));
}

// Takes one character, or a byte that is none, off the front of a text that isn't empty.
char32_t WindowsCodePage::Take(std::string_view& bytes) const {
  const auto first = static_cast<unsigned char>(bytes.front());
  std::optional<char32_t> character = singles_[first];
  std::size_t length = 1;
  while (!character && length < std::min(kLongestCharacter, bytes.size())) {
    ++length;
    character = CharacterOf(bytes.substr(0, length));
  }
  bytes.remove_prefix(character ? length : 1);
  return character.value_or(kStandIns + first);
}

std::string WindowsCodePage::ToUnicode(std::string_view bytes) const {
  std::string utf8;
  utf8.reserve(bytes.size());
  while (!bytes.empty()) AppendUtf8(utf8, Take(bytes));
  return utf8;
}

std::string WindowsCodePage::FromUnicode(std::string_view utf8) const {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t character = TakeCharacter(utf8);
    if (IsStandIn(character)) {
      bytes += static_cast<char>(character - kStandIns);
    } else {
      bytes += character == kNoCharacter ? "?" : BytesOf(character).value_or("?");
    }
  }
  return bytes;
}

char WindowsCodePage::LowerCaseOf(unsigned char byte) const {
  const char32_t character = singles_[byte].value_or(kNoCharacter);
  if (character > 0xFFFF) return static_cast<char>(byte);
  const wchar_t lower = wheelwright::LowerCaseOf(static_cast<wchar_t>(character));
  const std::optional<std::string> bytes = BytesOf(lower);
  return bytes && bytes->size() == 1 ? bytes->front() : static_cast<char>(byte);
}

std::array<char, 256> WindowsCodePage::LowerCaseTable() const {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    table[i] = LowerCaseOf(static_cast<unsigned char>(i));
  }
  return table;
}

}  // namespace wheelwright
