#include "core/Vars.h"
#include "formats/LanguageFile.h"
#include "oracle/FormatLaws.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "support/Thrown.h"

#include <array>

namespace wheelwright::testing {
namespace {

using Entries = std::array<std::string, Vars::kLangEntries>;

std::string Replaced(std::string text, const std::string& word) {
  for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at)) {
    text.replace(at, word.size(), "\r\n");
  }
  return text;
}

// The number of the failure that ends the reading.
int ReadLanguagePlainly(const std::string& text, Entries& entries) {
  std::size_t entry = 0;
  for (const std::string& line : PlainLines(text)) {
    if (entry == entries.size()) return 9;
    entries[entry++] = Replaced(Replaced(line, "\\n"), "\\N");
  }
  return 0;
}

}  // namespace

void RequireLanguagesRead(const std::string& first, const std::string& second) {
  Entries found;
  Entries expected;
  for (const std::string& text : {first, second}) {
    const int failure = NumberThrownBy([&] { ReadLanguage(text, found); });
    Require(failure == ReadLanguagePlainly(text, expected), "reading fails as plain reading does");
    Require(found == expected, "the entries are those of plain reading");
  }
}

}  // namespace wheelwright::testing
