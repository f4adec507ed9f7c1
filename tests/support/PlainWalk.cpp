#include "support/PlainWalk.h"

#include "core/Text.h"

namespace wheelwright::testing {
namespace {

bool Begins(std::string_view line, const std::string& name) {
  return line.substr(0, name.size()) == name;
}

}  // namespace

std::vector<NameHit> WalkForBeginnings(const std::vector<std::string>& names,
                                       std::string_view line) {
  std::vector<NameHit> hits;
  for (std::size_t j = 0; j < names.size(); ++j) {
    if (Begins(line, names[j])) hits.push_back({static_cast<int>(j), true});
  }
  return hits;
}

std::vector<NameHit> WalkForNamesAnywhere(const std::vector<std::string>& names,
                                          std::string_view line) {
  const std::string folded = FoldedCase(line);
  std::vector<NameHit> hits;
  for (std::size_t j = 0; j < names.size(); ++j) {
    if (folded.find(FoldedCase(names[j])) == std::string::npos) continue;
    hits.push_back({static_cast<int>(j), Begins(line, names[j])});
  }
  return hits;
}

}  // namespace wheelwright::testing
