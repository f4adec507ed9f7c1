#include "fuzz/SaveLaws.h"

#include "core/Text.h"
#include "fuzz/Law.h"
#include "support/HandlingReference.h"

#include <algorithm>
#include <initializer_list>
#include <sstream>

namespace wheelwright::fuzz {
namespace {

using Texts = std::vector<std::string>;

bool HoldsAWord(const std::string& line, std::initializer_list<const char*> words) {
  const std::string folded = FoldedCase(line);
  return std::any_of(words.begin(), words.end(),
                     [&](const char* word) { return folded.find(word) != std::string::npos; });
}

bool HoldsAMark(const std::string& text, const char* marks) {
  return text.find_first_of(marks) != std::string::npos;
}

bool IsForeignInHandling(const std::string& line) { return HoldsAMark(line.substr(0, 14), ";%!$"); }

void RequireInOrder(const Texts& lines, const std::string& saved) {
  const Texts all = testing::PlainLines(saved);
  auto place = all.begin();
  for (const std::string& line : lines) {
    place = std::find(place, all.end(), line);
    Require(place != all.end(), "foreign lines come through a save byte for byte and in order");
    ++place;
  }
}

// A comment's mark stands in its first columns; a section begins with one of the words.
void RequireSectionComments(const std::string& onDisk, const std::string& saved,
                            std::size_t columns, const Texts& sections) {
  Texts kept;
  bool beforeSection = true;
  for (const std::string& line : testing::PlainLines(onDisk)) {
    const bool comment = HoldsAMark(line.substr(0, columns), "#");
    const bool ours = comment && HoldsAWord(line, {"created", "homepage"});
    if ((comment || beforeSection) && !ours) kept.push_back(line);
    const bool opens = std::any_of(sections.begin(), sections.end(),
                                   [&](const std::string& word) { return line.starts_with(word); });
    if (opens) beforeSection = false;
  }
  RequireInOrder(kept, saved);
}

}  // namespace

void RequireHandlingComments(const std::string& onDisk, const std::string& saved) {
  Texts kept;
  for (const std::string& line : testing::PlainLines(onDisk)) {
    const bool ours = HoldsAWord(line, {"author", "created", "homepage"});
    if (IsForeignInHandling(line) && !ours) kept.push_back(line);
  }
  RequireInOrder(kept, saved);
}

void RequireDefinitionComments(const std::string& onDisk, const std::string& saved) {
  RequireSectionComments(onDisk, saved, std::string::npos, {"cars"});
}

void RequireColorComments(const std::string& onDisk, const std::string& saved) {
  RequireSectionComments(onDisk, saved, 5, {"col", "car"});
}

void RequireTokensInLines(const std::string& saved, const std::vector<testing::Tokens>& vehicles) {
  std::vector<testing::Tokens> found;
  for (std::string line : testing::PlainLines(saved)) {
    if (IsForeignInHandling(line) || line.empty()) continue;
    testing::Tokens& tokens = found.emplace_back();
    std::istringstream parts(line);
    for (std::string token; std::getline(parts, token, ' ');) {
      if (!token.empty()) tokens.push_back(token);
    }
  }
  Require(found == vehicles, "every token comes through a save unchanged");
}

void RequireOnlyGrowth(const std::string& earlier, const std::string& later,
                       const std::string& growth) {
  if (later != earlier)
    RequireSameText(later, earlier + growth, "a save adds its line ends at most");
}

}  // namespace wheelwright::fuzz
