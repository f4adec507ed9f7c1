// The rows of a list in report form, read straight from the plain list.
#pragma once

#include "screen/Controls.h"

#include <QAbstractTableModel>

namespace wheelwright {

class ReportModel : public QAbstractTableModel {
 public:
  // A cell as it is read on screen. The second column holds captions of fields, whose marks go.
  static QString CellText(const ReportList::Row& row, std::size_t column);

  ReportModel(const ReportList& list, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  // To be called after rows have joined at the end or the list has been cleared.
  void RowsChanged();
  void HeadersChanged();

 private:
  const ReportList& list_;
  // The rows that the views know of.
  int known_ = 0;
};

}  // namespace wheelwright
