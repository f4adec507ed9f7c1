#include "forms/qt/RowView.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>

namespace wheelwright {
namespace {

bool IsChoosingKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
         event.key() == Qt::Key_Space;
}

}  // namespace

RowView::RowView(QAbstractItemView::SelectionMode mode, QWidget* parent) : QListView(parent) {
  setSelectionMode(mode);
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
}

std::vector<int> RowView::SelectedRows() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void RowView::SelectRows(const std::vector<int>& rows) {
  QItemSelection selection;
  for (std::size_t first = 0; first < rows.size();) {
    std::size_t last = first;
    while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
    selection.append({model()->index(rows[first], 0), model()->index(rows[last], 0)});
    first = last + 1;
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void RowView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex row = indexAt(event->position().toPoint());
  const bool isAgain = event->button() == Qt::LeftButton && IsOnlySelected(row);
  QListView::mousePressEvent(event);
  if (isAgain) ChooseAgain(row);
}

void RowView::keyPressEvent(QKeyEvent* event) {
  const bool isAgain = IsOnlySelected(currentIndex());
  QListView::keyPressEvent(event);
  if (!IsChoosingKey(*event) || !currentIndex().isValid()) return;
  if (isAgain) {
    ChooseAgain(currentIndex());
  } else if (selectionMode() == SingleSelection) {
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
  }
}

bool RowView::IsOnlySelected(const QModelIndex& row) const {
  return row.isValid() && SelectedRows() == std::vector<int>{row.row()};
}

void RowView::ChooseAgain(const QModelIndex& row) {
  if (chosenAgain) chosenAgain(row.row());
}

}  // namespace wheelwright
