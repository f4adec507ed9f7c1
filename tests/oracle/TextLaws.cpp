#include "oracle/TextLaws.h"

#include "core/CodePage.h"
#include "core/Text.h"
#include "formats/Lines.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

struct Range {
  unsigned first;
  unsigned last;
};

// The well-formed sequences of UTF-8, as the Unicode standard lists them.
const std::vector<std::vector<Range>> kSequences = {
    {{0x00, 0x7F}},
    {{0xC2, 0xDF}, {0x80, 0xBF}},
    {{0xE0, 0xE0}, {0xA0, 0xBF}, {0x80, 0xBF}},
    {{0xE1, 0xEC}, {0x80, 0xBF}, {0x80, 0xBF}},
    {{0xED, 0xED}, {0x80, 0x9F}, {0x80, 0xBF}},
    {{0xEE, 0xEF}, {0x80, 0xBF}, {0x80, 0xBF}},
    {{0xF0, 0xF0}, {0x90, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}},
    {{0xF1, 0xF3}, {0x80, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}},
    {{0xF4, 0xF4}, {0x80, 0x8F}, {0x80, 0xBF}, {0x80, 0xBF}},
};

bool Begins(const std::string& text, std::size_t at, const std::vector<Range>& sequence) {
  if (at + sequence.size() > text.size()) return false;
  for (std::size_t i = 0; i < sequence.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[at + i]);
    if (byte < sequence[i].first || byte > sequence[i].last) return false;
  }
  return true;
}

// The length of the character at a place, 0 if none begins there.
std::size_t LengthAt(const std::string& text, std::size_t at) {
  for (const std::vector<Range>& sequence : kSequences) {
    if (Begins(text, at, sequence)) return sequence.size();
  }
  return 0;
}

std::map<std::string, char> BytesByCharacter() {
  std::map<std::string, char> bytes;
  for (int number = 0; number < 256; ++number) {
    const char byte = static_cast<char>(number);
    bytes[ToUnicode(std::string(1, byte))] = byte;
  }
  return bytes;
}

std::string FromUnicodePlainly(const std::string& utf8) {
  static const std::map<std::string, char> kBytes = BytesByCharacter();
  std::string text;
  std::size_t at = 0;
  while (at < utf8.size()) {
    const std::size_t length = LengthAt(utf8, at);
    const auto found = kBytes.find(utf8.substr(at, length));
    text += length == 0 || found == kBytes.end() ? '?' : found->second;
    at += length == 0 ? 1 : length;
  }
  return text;
}

void RequireWellFormed(const std::string& utf8) {
  std::size_t at = 0;
  while (at < utf8.size()) {
    const std::size_t length = LengthAt(utf8, at);
    Require(length > 0, "what comes from the code page is Unicode");
    at += length;
  }
}

int SignOf(int number) { return (number > 0) - (number < 0); }

void RequireSearchLaws(const std::string& text, const std::string& word) {
  const std::string folded = FoldedCase(word);
  for (std::size_t from = 0; from <= text.size() + 1; from = from * 2 + 1) {
    Require(FindIgnoringCase(text, folded, from) == FoldedCase(text).find(folded, from),
            "a search that ignores case finds what a search in lower case finds");
  }
}

void RequireLineLaws(const std::string& text) {
  std::vector<std::string> lines;
  for (const std::string_view line : Lines(text)) lines.emplace_back(line);
  Require(lines == PlainLines(text), "lines end at carriage returns");
  RequireSameText(WithoutBareLineFeeds(text).value_or(text), NormalisedPlainly(text),
                  "bare line feeds alone are rewritten");
}

}  // namespace

void RequireLetterLaws(const std::string& text) {
  const std::string utf8 = ToUnicode(text);
  RequireWellFormed(utf8);
  RequireSameText(FromUnicode(utf8), text, "every byte comes back from Unicode");
  RequireSameText(FromUnicode(text), FromUnicodePlainly(text),
                  "what is no character of the code page becomes a question mark");
  RequireSameText(FoldedCase(FoldedCase(text)), FoldedCase(text), "lower case stays lower case");
}

void RequireTextLaws(const std::string& text, const std::string& other) {
  const int order = FoldedCase(text).compare(FoldedCase(other));
  Require(SignOf(CompareIgnoringCase(text, other)) == SignOf(order),
          "texts are ordered by their lower-case letters");
  Require(EqualsIgnoringCase(text, other) == (order == 0), "equal texts are equal in lower case");
  RequireSearchLaws(text, other);
  RequireLineLaws(text);
  const std::string_view trimmed = TrimBlanks(text);
  Require(TrimBlanks("  " + text + " ") == trimmed, "blanks at the ends change no cut text");
  Require(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '),
          "a cut text has no blanks at its ends");
}

void RequireOrderLaws(const std::vector<std::string>& texts) {
  std::vector<std::string> expected = texts;
  std::stable_sort(expected.begin(), expected.end(), [](const std::string& left, const std::string& right) {
    return FoldedCase(left) < FoldedCase(right);
  });
  std::vector<std::string> sorted = texts;
  SortAsInLists(sorted);
  Require(sorted == expected, "texts are sorted by their lower-case letters, equal ones in their order");
}

}  // namespace wheelwright::testing
