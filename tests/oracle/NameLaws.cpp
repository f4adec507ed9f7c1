#include "core/TextIndex.h"
#include "formats/NameIndex.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "oracle/TextLaws.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

int FirstPlainly(const std::vector<std::string>& names, const std::string& name, int from) {
  const auto found = std::find(names.begin() + from, names.end(), name);
  return found == names.end() ? TextIndex::kNone : static_cast<int>(found - names.begin());
}

void RequirePositions(const std::vector<std::string>& names, const TextIndex& index) {
  const auto nameAt = [&](int position) {
    return std::string_view(names[static_cast<std::size_t>(position)]);
  };
  for (int position = 0; position < index.Count(); ++position) {
    const std::string& name = names[static_cast<std::size_t>(position)];
    Require(index.First(name, nameAt) == FirstPlainly(names, name, 0), "the first of equal texts is found");
    Require(index.Next(position, nameAt) == FirstPlainly(names, name, position + 1),
            "equal texts are found one behind the other");
  }
}

}  // namespace

void RequireNameLaws(const std::vector<std::string>& names, const std::vector<std::string>& lines) {
  TextIndex texts;
  for (const std::string& name : names) texts.Add(name);
  RequirePositions(names, texts);
  NameIndex index(names);
  for (const std::string& line : lines) {
    Require(index.Beginning(line) == WalkForBeginnings(names, line),
            "index and plain walk find the same beginnings");
    Require(index.Anywhere(line) == WalkForNamesAnywhere(names, line),
            "index and plain walk find the same names");
  }
}

}  // namespace wheelwright::testing
