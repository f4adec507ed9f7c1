#include "forms/qt/mirrors/ListMirrors.h"

#include "forms/qt/widgets/Inputs.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>

namespace wheelwright {
namespace {

std::vector<int> ChosenRows(const RowList& list) {
  return list.Row() == RowList::kNoRow ? std::vector<int>{} : std::vector<int>{list.Row()};
}

}  // namespace

PickListMirror::PickListMirror(PickList& list, EventEdge& edge, QWidget* parent)
    : RowsMirror(list, edge, *new PickBox(parent)) {
  QObject::connect(&widget_, &QComboBox::activated, Receiver(), [this](int row) {
    ByHand([&] { plain_.ChooseByHand(row); });
    Follow(Aspect::Choice);
  });
  FollowAll();
}

// The widget chooses a row of its own whenever it gets other rows.
void PickListMirror::Follow(Aspect aspect) {
  const QSignalBlocker blocker(widget_);
  model_.Follow(aspect);
  widget_.setCurrentIndex(plain_.Row());
}

ListBoxMirror::ListBoxMirror(ListBox& list, EventEdge& edge, QWidget* parent)
    : RowsMirror(list, edge, *new RowView(QAbstractItemView::SingleSelection, parent)) {
  QObject::connect(widget_.selectionModel(), &QItemSelectionModel::selectionChanged, Receiver(),
                   [this] { SelectionChanged(); });
  widget_.chosenAgain = [this](int row) { Chosen(row); };
  FollowAll();
}

void ListBoxMirror::SelectionChanged() {
  if (isFollowing_) return;
  const std::vector<int> rows = widget_.SelectedRows();
  if (rows.empty()) {
    Follow(Aspect::Choice);
  } else {
    Chosen(rows.front());
  }
}

void ListBoxMirror::Chosen(int row) {
  ByHand([&] { plain_.ChooseByHand(row); });
  Follow(Aspect::Choice);
}

void ListBoxMirror::Follow(Aspect aspect) {
  const QScopedValueRollback following(isFollowing_, true);
  model_.Follow(aspect);
  const std::vector<int> chosen = ChosenRows(plain_);
  if (widget_.SelectedRows() == chosen) return;
  widget_.SelectRows(chosen);
  if (chosen.empty()) return;
  // The cursor scrolls to its row, which only a new choice shall.
  QScrollBar& bar = *widget_.verticalScrollBar();
  const int place = bar.value();
  widget_.selectionModel()->setCurrentIndex(model_.index(plain_.Row()), QItemSelectionModel::NoUpdate);
  if (aspect != Aspect::Choice) bar.setValue(place);
}

MarkListMirror::MarkListMirror(MarkList& list, EventEdge& edge, QWidget* parent)
    : RowsMirror(list, edge, *new RowView(QAbstractItemView::ExtendedSelection, parent)) {
  QObject::connect(widget_.selectionModel(), &QItemSelectionModel::selectionChanged, Receiver(),
                   [this] { SelectionChanged(); });
  FollowAll();
}

void MarkListMirror::SelectionChanged() {
  if (isFollowing_) return;
  ByHand([this] { plain_.MarkByHand(widget_.SelectedRows()); });
  Follow(Aspect::Choice);
}

void MarkListMirror::Follow(Aspect aspect) {
  const QScopedValueRollback following(isFollowing_, true);
  model_.Follow(aspect);
  const std::vector<int> marked = plain_.Marked();
  if (widget_.SelectedRows() != marked) widget_.SelectRows(marked);
}

}  // namespace wheelwright
