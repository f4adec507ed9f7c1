// A list view in which what is chosen is what is selected, and never just the row with the cursor.
#pragma once

#include <functional>
#include <vector>

#include <QListView>

namespace wheelwright {

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

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool IsOnlySelected(const QModelIndex& row) const;
  void ChooseAgain(const QModelIndex& row);
};

}  // namespace wheelwright
