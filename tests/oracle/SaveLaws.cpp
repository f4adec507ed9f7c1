#include "oracle/SaveLaws.h"

#include "oracle/Law.h"
#include "oracle/PlainTexts.h"

#include <algorithm>

namespace wheelwright::testing {

void RequireInOrder(const std::vector<std::string>& lines, const std::string& saved) {
  const std::vector<std::string> all = PlainLines(saved);
  auto place = all.begin();
  for (const std::string& line : lines) {
    place = std::find(place, all.end(), line);
    Require(place != all.end(), "foreign lines come through a save byte for byte and in order");
    ++place;
  }
}

void RequireSectionComments(const std::string& onDisk, const std::string& saved, std::size_t columns,
                            const std::vector<std::string>& sections) {
  std::vector<std::string> kept;
  bool beforeSection = true;
  for (const std::string& line : PlainLines(onDisk)) {
    const bool isComment = line.substr(0, columns).find('#') != std::string::npos;
    const bool isOurs = isComment && (HoldsInAnyCase(line, "created") || HoldsInAnyCase(line, "homepage"));
    if ((isComment || beforeSection) && !isOurs) kept.push_back(line);
    const auto opensHere = [&](const std::string& word) { return line.starts_with(word); };
    if (std::any_of(sections.begin(), sections.end(), opensHere)) beforeSection = false;
  }
  RequireInOrder(kept, saved);
}

void RequireOnlyGrowth(const std::string& earlier, const std::string& later, const std::string& growth) {
  if (later == earlier) return;
  RequireSameText(later, earlier + growth, "a save adds its line ends at most");
}

}  // namespace wheelwright::testing
