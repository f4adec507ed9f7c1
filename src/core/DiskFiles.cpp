// What is the same on every disk.
#include "core/DiskFiles.h"

#include "core/CodePage.h"
#include "core/Text.h"

#include <algorithm>

namespace wheelwright {
namespace {

bool StandsBefore(const std::string& left, const std::string& right) {
  const int order = CompareIgnoringCase(FromUnicode(left), FromUnicode(right));
  return order != 0 ? order < 0 : left < right;
}

}  // namespace

std::vector<std::string> DiskFiles::List(const std::string& directory) const {
  std::vector<std::string> names = NamesIn(directory);
  std::sort(names.begin(), names.end(), StandsBefore);
  return names;
}

}  // namespace wheelwright
