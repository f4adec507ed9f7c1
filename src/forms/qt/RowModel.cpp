#include "forms/qt/RowModel.h"

#include "forms/qt/QtText.h"

namespace wheelwright {

RowModel::RowModel(const RowList& list, QObject* parent)
    : QAbstractListModel(parent), list_(list) {}

int RowModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : list_.Count();
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || index.row() < 0 || index.row() >= list_.Count()) return {};
  return Shown(list_.Rows()[static_cast<std::size_t>(index.row())]);
}

void RowModel::RowsChanged() {
  beginResetModel();
  endResetModel();
}

void RowModel::TextsChanged() {
  if (list_.Count() > 0) Q_EMIT dataChanged(index(0), index(list_.Count() - 1));
}

}  // namespace wheelwright
