// The rows of a plain list as Qt's views want them: read straight from the list, never copied.
#pragma once

#include "screen/Lists.h"

#include <array>
#include <optional>
#include <string>

#include <QAbstractListModel>

namespace wheelwright {

// The colour that a row's text tells of, if it does.
using ColorOfText = std::optional<std::array<int, 3>> (*)(const std::string& text);

class RowModel : public QAbstractListModel {
 public:
  RowModel(const RowList& list, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  // Shows the colours that the rows tell of beside them.
  void ShowColors(ColorOfText colorOf) { colorOf_ = colorOf; }

  // To be called after the list's rows have changed as a whole, and after texts of rows have.
  void RowsChanged();
  void TextsChanged();

 private:
  QVariant Decoration(const std::string& text) const;

  const RowList& list_;
  ColorOfText colorOf_ = nullptr;
};

}  // namespace wheelwright
