#include "forms/qt/mirrors/Rows.h"

#include "forms/qt/widgets/Inputs.h"
#include "forms/qt/widgets/ShownText.h"
#include "forms/qt/widgets/Swatches.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>

namespace wheelwright {
namespace {

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

bool IsChoosingKey(const QKeyEvent& event) { return IsEnter(event) || event.key() == Qt::Key_Space; }

}  // namespace

RowModel::RowModel(const RowList& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

int RowModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : list_.Count(); }

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (index.row() < 0 || index.row() >= list_.Count()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::DisplayRole) return Shown(list_.Rows()[row]);
  return role == Qt::DecorationRole ? Decoration(row) : QVariant();
}

QVariant RowModel::Decoration(std::size_t row) const {
  if (!colorsOf_) return {};
  std::vector<QColor> colors;
  for (const auto& [red, green, blue] : colorsOf_(row)) colors.emplace_back(red, green, blue);
  return colors.empty() ? QVariant() : SwatchIcon(colors);
}

void RowModel::Follow(Aspect aspect) {
  if (aspect == Aspect::Rows) {
    beginResetModel();
    endResetModel();
  }
  if (aspect == Aspect::Content && list_.Count() > 0) {
    Q_EMIT dataChanged(index(0), index(list_.Count() - 1));
  }
}

RowView::RowView(QAbstractItemView::SelectionMode mode, QWidget* parent) : QListView(parent) {
  setSelectionMode(mode);
  setItemDelegate(new RowDelegate(this));
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
  new FocusRing(*this);
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
  if (entered && IsEnter(*event)) return entered();
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
