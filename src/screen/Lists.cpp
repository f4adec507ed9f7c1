#include "screen/Lists.h"

#include "core/Failure.h"
#include "core/Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace wheelwright {

RowList::RowList(Window& window, std::string name, Order order)
    : Control(window, std::move(name)), order_(order) {}

std::string RowList::Text() const {
  return row_ == kNoRow ? std::string() : rows_[static_cast<std::size_t>(row_)];
}

void RowList::AddRow(std::string text) {
  std::vector<std::string> one;
  one.push_back(std::move(text));
  AddRows(std::move(one));
}

void RowList::AddRows(std::vector<std::string> texts) {
  if (texts.empty()) return;
  if (order_ == Order::Sorted) {
    MergeSorted(std::move(texts));
  } else {
    rows_.insert(rows_.end(), std::make_move_iterator(texts.begin()), std::make_move_iterator(texts.end()));
    marked_.resize(rows_.size());
  }
  Tell(Aspect::Rows);
}

// Each new text goes before the first greater row. Rows that a rename has put out of order stay as
// they are; the merge passes them as they come.
void RowList::MergeSorted(std::vector<std::string> texts) {
  SortAsInLists(texts);
  if (rows_.empty()) {
    rows_ = std::move(texts);
    marked_.resize(rows_.size());
    return;
  }
  std::vector<std::string> merged;
  std::vector<bool> marked;
  merged.reserve(rows_.size() + texts.size());
  marked.reserve(merged.capacity());
  auto next = texts.begin();
  int chosen = kNoRow;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    for (; next != texts.end() && SortsBefore(*next, rows_[row]); ++next) {
      merged.push_back(std::move(*next));
      marked.push_back(false);
    }
    if (static_cast<int>(row) == row_) chosen = static_cast<int>(merged.size());
    merged.push_back(std::move(rows_[row]));
    marked.push_back(marked_[row]);
  }
  merged.insert(merged.end(), std::make_move_iterator(next), std::make_move_iterator(texts.end()));
  marked.resize(merged.size());
  rows_ = std::move(merged);
  marked_ = std::move(marked);
  row_ = chosen;
}

void RowList::RemoveRow(int row) {
  CheckRow(row);
  rows_.erase(rows_.begin() + row);
  marked_.erase(marked_.begin() + row);
  if (row == row_) {
    row_ = kNoRow;
  } else if (row < row_) {
    --row_;
  }
  Tell(Aspect::Rows);
}

void RowList::ReplaceRow(int row, std::string text) {
  CheckRow(row);
  std::string& shown = rows_[static_cast<std::size_t>(row)];
  if (shown == text) return;
  shown = std::move(text);
  Tell(Aspect::Content);
}

void RowList::Clear() { ReplaceAll({}); }

void RowList::ReplaceAll(std::vector<std::string> rows) {
  rows_ = std::move(rows);
  row_ = kNoRow;
  marked_.assign(rows_.size(), false);
  Tell(Aspect::Rows);
}

void RowList::Choose(int row) {
  if (row < 0 || row >= Count()) throw Failure(FailureNumber::InvalidPropertyValue);
  if (row == row_ && !runsClickOnSameRow) return;
  ChooseByHand(row);
}

void RowList::ChooseByHand(int row) {
  row_ = row;
  Tell(Aspect::Choice);
  Run(clicked);
}

void RowList::CheckRow(int row) const {
  if (row < 0 || row >= Count()) throw Failure(FailureNumber::InvalidCall);
}

std::vector<int> MarkList::Marked() const {
  std::vector<int> rows;
  for (int row = 0; row < Count(); ++row) {
    if (IsMarked(row)) rows.push_back(row);
  }
  return rows;
}

void MarkList::MarkByHand(const std::vector<int>& rows) {
  std::vector<bool> marked(Rows().size(), false);
  for (const int row : rows) {
    if (row < 0 || row >= Count()) throw Failure(FailureNumber::InvalidPropertyValue);
    marked[static_cast<std::size_t>(row)] = true;
  }
  marked_ = std::move(marked);
  Tell(Aspect::Choice);
}

void MarkList::RemoveMarked() {
  std::vector<std::string> kept;
  for (int row = 0; row < Count(); ++row) {
    if (!IsMarked(row)) kept.push_back(Rows()[static_cast<std::size_t>(row)]);
  }
  ReplaceAll(std::move(kept));
}

}  // namespace wheelwright
