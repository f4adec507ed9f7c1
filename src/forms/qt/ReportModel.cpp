#include "forms/qt/ReportModel.h"

#include "forms/qt/QtText.h"

namespace wheelwright {

ReportModel::ReportModel(const ReportList& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list) {}

QString ReportModel::CellText(const ReportList::Row& row, std::size_t column) {
  constexpr std::size_t kCaptionColumn = 1;
  const std::string& text = row.at(column);
  return column == kCaptionColumn ? WithoutMarks(ShownCaption(text)) : Shown(text);
}

int ReportModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : known_; }

int ReportModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ReportList::kColumns);
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
  // An index of nothing has the row -1, which lies behind all others.
  const auto row = static_cast<std::size_t>(index.row());
  if (role != Qt::DisplayRole || row >= list_.Rows().size()) return {};
  return CellText(list_.Rows()[row], static_cast<std::size_t>(index.column()));
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return WithoutMarks(ShownCaption(list_.Columns().at(static_cast<std::size_t>(section))));
}

void ReportModel::RowsChanged() {
  const int count = static_cast<int>(list_.Rows().size());
  if (count > known_) {
    beginInsertRows({}, known_, count - 1);
    known_ = count;
    endInsertRows();
  } else {
    beginResetModel();
    known_ = count;
    endResetModel();
  }
}

void ReportModel::HeadersChanged() {
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

}  // namespace wheelwright
