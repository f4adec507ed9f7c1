#include "editor/ForeignEntry.h"

#include <algorithm>

namespace wheelwright {

void TakeForeignEntryAway(PickList& list, std::size_t fixedEntries) {
  while (list.Rows().size() > fixedEntries) list.RemoveRow(list.Count() - 1);
}

void ChooseText(PickList& list, std::size_t fixedEntries, const std::string& text) {
  TakeForeignEntryAway(list, fixedEntries);
  const auto found = std::find(list.Rows().begin(), list.Rows().end(), text);
  const auto row = found - list.Rows().begin();
  if (found == list.Rows().end()) list.AddRow(text);
  list.Choose(static_cast<int>(row));
}

}  // namespace wheelwright
