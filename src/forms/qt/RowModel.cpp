#include "forms/qt/RowModel.h"

#include "forms/qt/QtText.h"
#include "forms/qt/SwatchIcon.h"

namespace wheelwright {

RowModel::RowModel(const RowList& list, QObject* parent)
    : QAbstractListModel(parent), list_(list) {}

int RowModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : list_.Count();
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (index.row() < 0 || index.row() >= list_.Count()) return {};
  const std::string& text = list_.Rows()[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole) return Shown(text);
  return role == Qt::DecorationRole ? Decoration(text) : QVariant();
}

QVariant RowModel::Decoration(const std::string& text) const {
  const auto color = colorOf_ == nullptr ? std::nullopt : colorOf_(text);
  if (!color) return {};
  const auto& [red, green, blue] = *color;
  return SwatchIcon({red, green, blue});
}

void RowModel::RowsChanged() {
  beginResetModel();
  endResetModel();
}

void RowModel::TextsChanged() {
  if (list_.Count() > 0) Q_EMIT dataChanged(index(0), index(list_.Count() - 1));
}

}  // namespace wheelwright
