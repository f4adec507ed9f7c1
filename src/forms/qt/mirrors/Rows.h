// The rows of a plain list as Qt's views want them, and the view of a list box.
#pragma once

#include "core/Records.h"
#include "screen/Lists.h"

#include <functional>
#include <string>
#include <vector>

#include <QAbstractListModel>
#include <QListView>

namespace wheelwright {

// The colours to be shown in front of a row's text, none or more.
using ColorsOfRow = std::function<std::vector<Rgb>(std::size_t row)>;

// Reads the rows straight from the list and never copies them.
class RowModel : public QAbstractListModel {
 public:
  RowModel(const RowList& list, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  void ShowColors(ColorsOfRow colorsOf) { colorsOf_ = std::move(colorsOf); }

  // Tells the views that the list's rows have changed as a whole, or texts of rows have.
  void Follow(Aspect aspect);

 private:
  QVariant Decoration(std::size_t row) const;

  const RowList& list_;
  ColorsOfRow colorsOf_;
};

// A list view in which what is chosen is what is selected, and never just the row with the cursor.
class RowView : public QListView {
 public:
  RowView(QAbstractItemView::SelectionMode mode, QWidget* parent);

  // The selected rows from first to last.
  std::vector<int> SelectedRows() const;
  // Selects exactly these rows, which are in order.
  void SelectRows(const std::vector<int>& rows);

  // Called when a person chooses the row that is the selected one already, which changes no
  // selection.
  std::function<void(int)> chosenAgain;
  // Called by Enter, which chooses no row then.
  std::function<void()> entered;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool IsOnlySelected(const QModelIndex& row) const;
  void ChooseAgain(const QModelIndex& row);
};

}  // namespace wheelwright
