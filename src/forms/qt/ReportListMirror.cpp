#include "forms/qt/ReportListMirror.h"

#include "forms/qt/QtText.h"

#include <algorithm>
#include <array>

#include <QHeaderView>

namespace wheelwright {
namespace {

constexpr std::array<int, ReportList::kColumns> kColumnWidths = {100, 160, 303};

// The last column gives way to a vertical scroll bar, so that no horizontal one is needed.
class ReportView : public QTreeView {
 public:
  using QTreeView::QTreeView;

  // A large font needs more than the design.
  void WidenForHeaders() {
    for (int column = 0; column < header()->count(); ++column) {
      const int needed = header()->sectionSizeHint(column);
      if (header()->sectionSize(column) < needed) header()->resizeSection(column, needed);
    }
    FitLast();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTreeView::resizeEvent(event);
    FitLast();
  }

 private:
  void FitLast() {
    const int last = header()->count() - 1;
    const int room = viewport()->width() - header()->sectionPosition(last);
    header()->resizeSection(last, std::min(room, kColumnWidths.back()));
  }
};

ReportModel& ModelOf(const ReportList& list, QTreeView& widget) {
  auto* model = new ReportModel(list, &widget);
  widget.setModel(model);
  return *model;
}

}  // namespace

ReportListMirror::ReportListMirror(ReportList& list, EventEdge& edge, QWidget* parent)
    : Mirror(list, edge, *new ReportView(parent)),
      widget_(static_cast<QTreeView&>(Widget())),
      model_(ModelOf(list, widget_)) {
  widget_.setRootIsDecorated(false);
  widget_.setItemsExpandable(false);
  widget_.setUniformRowHeights(true);
  widget_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget_.setSelectionMode(QAbstractItemView::ExtendedSelection);
  widget_.header()->setStretchLastSection(false);
  for (std::size_t column = 0; column < kColumnWidths.size(); ++column) {
    widget_.header()->resizeSection(static_cast<int>(column), kColumnWidths[column]);
  }
  FollowAll();
}

void ReportListMirror::Follow(Aspect aspect) {
  if (aspect == Aspect::Rows) model_.RowsChanged();
  if (aspect != Aspect::Content) return;
  model_.HeadersChanged();
  static_cast<ReportView&>(widget_).WidenForHeaders();
}

}  // namespace wheelwright
