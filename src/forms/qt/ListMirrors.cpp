#include "forms/qt/ListMirrors.h"

#include "forms/qt/PickBox.h"
#include "forms/qt/QtText.h"
#include "forms/qt/SwatchIcon.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>

namespace wheelwright {
namespace {

RowModel& ModelOf(const RowList& list, QComboBox& widget) {
  auto* model = new RowModel(list, &widget);
  widget.setModel(model);
  return *model;
}

RowModel& ModelOf(const RowList& list, RowView& widget) {
  auto* model = new RowModel(list, &widget);
  widget.setModel(model);
  return *model;
}

std::vector<int> ChosenRows(const RowList& list) {
  return list.Row() == RowList::kNoRow ? std::vector<int>{} : std::vector<int>{list.Row()};
}

}  // namespace

PickListMirror::PickListMirror(PickList& list, EventEdge& edge, QWidget* parent)
    : Mirror(list, edge, *new PickBox(parent)),
      list_(list),
      widget_(static_cast<QComboBox&>(Widget())),
      model_(ModelOf(list, widget_)) {
  QObject::connect(&widget_, &QComboBox::activated, Receiver(), [this](int row) { Chosen(row); });
  FollowAll();
}

void PickListMirror::ShowColors(ColorOfText colorOf) {
  widget_.setIconSize(SwatchIconSize(widget_));
  model_.ShowColors(colorOf);
}

void PickListMirror::Chosen(int row) {
  ByHand([&] { list_.ChooseByHand(row); });
  Follow(Aspect::Choice);
}

// The widget chooses a row of its own whenever it gets other rows.
void PickListMirror::Follow(Aspect aspect) {
  const QSignalBlocker blocker(widget_);
  if (aspect == Aspect::Rows) model_.RowsChanged();
  if (aspect == Aspect::Content) model_.TextsChanged();
  widget_.setCurrentIndex(list_.Row());
}

ListBoxMirror::ListBoxMirror(ListBox& list, EventEdge& edge, QWidget* parent)
    : Mirror(list, edge, *new RowView(QAbstractItemView::SingleSelection, parent)),
      list_(list),
      widget_(static_cast<RowView&>(Widget())),
      model_(ModelOf(list, widget_)) {
  QObject::connect(widget_.selectionModel(), &QItemSelectionModel::selectionChanged, Receiver(),
                   [this] { SelectionChanged(); });
  widget_.chosenAgain = [this](int row) { Chosen(row); };
  FollowAll();
}

void ListBoxMirror::ShowColors(ColorOfText colorOf) {
  widget_.setIconSize(SwatchIconSize(widget_));
  model_.ShowColors(colorOf);
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
  ByHand([&] { list_.ChooseByHand(row); });
  Follow(Aspect::Choice);
}

void ListBoxMirror::Follow(Aspect aspect) {
  const QScopedValueRollback following(isFollowing_, true);
  if (aspect == Aspect::Rows) model_.RowsChanged();
  if (aspect == Aspect::Content) model_.TextsChanged();
  const std::vector<int> chosen = ChosenRows(list_);
  if (widget_.SelectedRows() == chosen) return;
  widget_.SelectRows(chosen);
  if (chosen.empty()) return;
  // The cursor scrolls to its row, which only a new choice shall.
  QScrollBar& bar = *widget_.verticalScrollBar();
  const int place = bar.value();
  widget_.selectionModel()->setCurrentIndex(model_.index(list_.Row()),
                                            QItemSelectionModel::NoUpdate);
  if (aspect != Aspect::Choice) bar.setValue(place);
}

MarkListMirror::MarkListMirror(MarkList& list, EventEdge& edge, QWidget* parent)
    : Mirror(list, edge, *new RowView(QAbstractItemView::ExtendedSelection, parent)),
      list_(list),
      widget_(static_cast<RowView&>(Widget())),
      model_(ModelOf(list, widget_)) {
  QObject::connect(widget_.selectionModel(), &QItemSelectionModel::selectionChanged, Receiver(),
                   [this] { SelectionChanged(); });
  FollowAll();
}

void MarkListMirror::SelectionChanged() {
  if (isFollowing_) return;
  ByHand([this] { list_.MarkByHand(widget_.SelectedRows()); });
  Follow(Aspect::Choice);
}

void MarkListMirror::Follow(Aspect aspect) {
  const QScopedValueRollback following(isFollowing_, true);
  if (aspect == Aspect::Rows) model_.RowsChanged();
  if (aspect == Aspect::Content) model_.TextsChanged();
  const std::vector<int> marked = list_.Marked();
  if (widget_.SelectedRows() != marked) widget_.SelectRows(marked);
}

}  // namespace wheelwright
