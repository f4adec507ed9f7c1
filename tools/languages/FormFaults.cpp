#include "languages/FormFaults.h"

#include "core/CodePage.h"
#include "core/Text.h"
#include "languages/Sightings.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace wheelwright::languages {
namespace {

constexpr std::string_view kBytesWithoutCharacter = "\x81\x8D\x8F\x90\x9D";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

std::string InHex(char byte) {
  std::array<char, 3> digits{};
  std::snprintf(digits.data(), digits.size(), "%02X", static_cast<unsigned char>(byte));
  return digits.data();
}

bool IsPlain(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

bool IsControl(char byte) { return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F'; }

// Words in the code page are hardly ever UTF-8 too: a letter beyond ASCII stands alone in them.
bool IsUtf8(const std::string& text) {
  return !std::all_of(text.begin(), text.end(), IsPlain) && ToUnicode(FromUnicode(text)) == text;
}

bool HasStrayLineEnd(const std::string& entry) { return entry.find_first_of("\r\n") != std::string::npos; }

// The line ends first: without them nothing else can be told of a line.
std::vector<Fault> LineEndFaults(const std::string& bytes, const std::vector<std::string>& entries) {
  if (std::any_of(entries.begin(), entries.end(), HasStrayLineEnd)) {
    return {{{}, "has lines that don't end in CR LF; save it with the line ends of Windows"}};
  }
  if (!bytes.ends_with(kLineEnd)) {
    return {{{}, "has no line end behind the last line; put one there"}};
  }
  return {};
}

void AddCodePageFaults(std::size_t entry, const std::string& text, std::vector<Fault>& faults) {
  if (IsUtf8(text)) {
    faults.push_back({entry, "is in UTF-8; write it in Windows-1252 as the rest of the file"});
    return;
  }
  for (const char byte : text) {
    if (kBytesWithoutCharacter.find(byte) != std::string_view::npos) {
      faults.push_back({entry, "has the byte " + InHex(byte) + ", which is no character of Windows-1252"});
    }
    if (IsControl(byte)) {
      faults.push_back({entry, "has the control character " + InHex(byte) + "; take it out"});
    }
  }
}

}  // namespace

std::vector<Fault> FormFaults(const std::string& bytes) {
  const std::vector<std::string> entries = EntriesOf(bytes);
  if (bytes.starts_with(kUtf8Mark) || IsUtf8(bytes)) {
    return {{{}, "is in UTF-8; save it in Windows-1252 (Western European)"}};
  }
  std::vector<Fault> faults = LineEndFaults(bytes, entries);
  if (!faults.empty()) return faults;
  if (entries.size() != kUsedEntries) {
    faults.push_back({{},
                      "has " + std::to_string(entries.size()) + " lines instead of " +
                          std::to_string(kUsedEntries) +
                          "; compare it with English.lng, where each line has its place"});
  }
  for (std::size_t entry = 0; entry < entries.size(); ++entry) {
    AddCodePageFaults(entry, entries[entry], faults);
  }
  return faults;
}

}  // namespace wheelwright::languages
