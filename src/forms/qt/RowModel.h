// The rows of a plain list as Qt's views want them: read straight from the list, never copied.
#pragma once

#include "screen/Lists.h"

#include <QAbstractListModel>

namespace wheelwright {

class RowModel : public QAbstractListModel {
 public:
  RowModel(const RowList& list, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  // To be called after the list's rows have changed as a whole, and after texts of rows have.
  void RowsChanged();
  void TextsChanged();

 private:
  const RowList& list_;
};

}  // namespace wheelwright
