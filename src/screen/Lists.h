// The two lists of rows that a person chooses from: the pick list and the list box.
#pragma once

#include "core/Records.h"
#include "screen/Control.h"

#include <functional>
#include <string>
#include <vector>

namespace wheelwright {

enum class Order { Arrival, Sorted };

// Rows of text (code page), at most one of them chosen. A sorted list compares ignoring case, a
// shorter text before its continuations; equal texts keep the order of arrival.
class RowList : public Control {
 public:
  static constexpr int kNoRow = -1;

  RowList(Window& window, std::string name, Order order = Order::Arrival);

  const std::vector<std::string>& Rows() const { return rows_; }
  int Count() const { return static_cast<int>(rows_.size()); }
  // The chosen row, kNoRow if none is.
  int Row() const { return row_; }
  // The chosen row's text, empty if none is.
  std::string Text() const;

  // A sorted list puts the text before its first greater row. The chosen entry stays chosen.
  void AddRow(std::string text);
  // The same as adding each text in turn, in the time of one sort.
  void AddRows(std::vector<std::string> texts);
  // Removing the chosen row leaves nothing chosen. Failure 5 for a row that isn't there.
  void RemoveRow(int row);
  // The row stays where it is, sorted list or not. Failure 5 for a row that isn't there.
  void ReplaceRow(int row, std::string text);
  // Takes the choice away and runs nothing.
  void Clear();

  // The program's choice. Failure 380 for a row that isn't there; otherwise runs `clicked`, also
  // when the row is the chosen one already.
  void Choose(int row);
  // A person's choice always runs `clicked`.
  void ChooseByHand(int row);

  std::function<void()> clicked;

 protected:
  // Whether the program's choice of the row that is chosen already runs `clicked`.
  bool runsClickOnSameRow = true;

  // Which rows are marked, in a list that has marks: an element for each row, which moves with it.
  std::vector<bool> marked_;

  // Other rows in place of all, with nothing chosen or marked.
  void ReplaceAll(std::vector<std::string> rows);

 private:
  void CheckRow(int row) const;
  void MergeSorted(std::vector<std::string> texts);

  Order order_;
  std::vector<std::string> rows_;
  int row_ = kNoRow;
};

// A pick list offers its entries only; nobody can type into it.
class PickList : public RowList {
 public:
  using RowList::RowList;

  // From then on the program's choice runs `clicked` only when the row changes.
  void RunClickOnlyWhenRowChanges() { runsClickOnSameRow = false; }
};

class ListBox : public RowList {
 public:
  using RowList::RowList;

  // The colours in front of each row's text, kept by whoever fills the list; most lists have none.
  std::vector<std::vector<Rgb>> swatches;
};

// A list box in which several rows can be marked at once; nothing is ever chosen in it.
class MarkList : public RowList {
 public:
  using RowList::RowList;

  // The marked rows from first to last.
  std::vector<int> Marked() const;
  bool IsMarked(int row) const { return row < Count() && marked_[static_cast<std::size_t>(row)]; }
  // Marks exactly these rows; failure 380 for a row that isn't there.
  void MarkByHand(const std::vector<int>& rows);
  // Removes every marked row, as if each were removed from last to first.
  void RemoveMarked();
};

}  // namespace wheelwright
