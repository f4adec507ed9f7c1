#include "core/Text.h"
#include "screen/Lists.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<std::string>;

// Few letters, so that equal and nearly equal names come up often.
rc::Gen<Rows> Names() {
  const auto letter = rc::gen::elementOf(std::string("aAbB\xC4\xE4"));
  return rc::gen::container<Rows>(rc::gen::container<std::string>(letter));
}

bool IsBefore(const std::string& left, const std::string& right) {
  return CompareIgnoringCase(left, right) < 0;
}

// A list with these very rows, in order or not, as renames leave them.
template <class List>
void FillAsRenamed(List& list, const Rows& rows) {
  list.AddRows(Rows(rows.size()));
  for (std::size_t i = 0; i < rows.size(); ++i) list.ReplaceRow(static_cast<int>(i), rows[i]);
}

void AddOneByOne(RowList& list, const Rows& names) {
  for (const std::string& name : names) list.AddRow(name);
}

int AnyRowOf(const RowList& list) { return *rc::gen::inRange(0, list.Count()); }

RC_GTEST_PROP(ListLaw, ASortedListIsAStableSortOfWhatArrived, ()) {
  Rows names = *Names();
  Window window("frmTest", "");
  RowList list(window, "list", Order::Sorted);
  AddOneByOne(list, names);
  std::stable_sort(names.begin(), names.end(), IsBefore);
  RC_ASSERT(list.Rows() == names);
}

RC_GTEST_PROP(ListLaw, AddingManyIsAddingOneByOneAlsoToRowsOutOfOrder, ()) {
  const Rows renamed = *rc::gen::nonEmpty(Names());
  const Rows names = *Names();
  Window window("frmTest", "");
  PickList atOnce(window, "atOnce", Order::Sorted);
  PickList oneByOne(window, "oneByOne", Order::Sorted);
  FillAsRenamed(atOnce, renamed);
  FillAsRenamed(oneByOne, renamed);
  const int chosen = AnyRowOf(atOnce);
  atOnce.Choose(chosen);
  oneByOne.Choose(chosen);
  atOnce.AddRows(names);
  AddOneByOne(oneByOne, names);
  RC_ASSERT(atOnce.Rows() == oneByOne.Rows());
  RC_ASSERT(atOnce.Row() == oneByOne.Row());
  RC_ASSERT(atOnce.Text() == renamed[static_cast<std::size_t>(chosen)]);
}

RC_GTEST_PROP(ListLaw, AddingManyMovesMarksAsAddingOneByOneDoes, ()) {
  const Rows renamed = *rc::gen::nonEmpty(Names());
  const Rows names = *Names();
  Window window("frmTest", "");
  MarkList atOnce(window, "atOnce", Order::Sorted);
  MarkList oneByOne(window, "oneByOne", Order::Sorted);
  FillAsRenamed(atOnce, renamed);
  FillAsRenamed(oneByOne, renamed);
  const auto marked =
      *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, static_cast<int>(renamed.size())));
  atOnce.MarkByHand(marked);
  oneByOne.MarkByHand(marked);
  atOnce.AddRows(names);
  AddOneByOne(oneByOne, names);
  RC_ASSERT(atOnce.Rows() == oneByOne.Rows());
  RC_ASSERT(atOnce.Marked() == oneByOne.Marked());
}

RC_GTEST_PROP(ListLaw, RemovingTheMarkedRowsIsRemovingEachFromLastToFirst, ()) {
  const Rows rows = *rc::gen::nonEmpty(Names());
  Window window("frmTest", "");
  MarkList atOnce(window, "atOnce", Order::Sorted);
  MarkList oneByOne(window, "oneByOne", Order::Sorted);
  FillAsRenamed(atOnce, rows);
  FillAsRenamed(oneByOne, rows);
  const auto marked =
      *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, static_cast<int>(rows.size())));
  atOnce.MarkByHand(marked);
  oneByOne.MarkByHand(marked);
  atOnce.RemoveMarked();
  const std::vector<int> gone = oneByOne.Marked();
  std::for_each(gone.rbegin(), gone.rend(), [&](int row) { oneByOne.RemoveRow(row); });
  RC_ASSERT(atOnce.Rows() == oneByOne.Rows());
  RC_ASSERT(atOnce.Marked() == oneByOne.Marked());
}

}  // namespace
}  // namespace wheelwright::testing
