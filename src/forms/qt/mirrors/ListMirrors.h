// The mirrors of the lists of rows: pick list, list box, the list box with marks, and the list in
// report form.
#pragma once

#include "forms/qt/mirrors/Mirror.h"
#include "forms/qt/mirrors/Rows.h"
#include "forms/qt/widgets/Swatches.h"
#include "screen/Controls.h"
#include "screen/Lists.h"

#include <QComboBox>
#include <QTreeView>

namespace wheelwright {

template <class ListType, class ViewType>
class RowsMirror : public MirrorOf<ListType, ViewType> {
 public:
  // Shows colours in front of the rows' texts, so many in each.
  void ShowColors(ColorsOfRow colorsOf, int inEachRow = 1) {
    this->widget_.setIconSize(SwatchIconSize(this->widget_, inEachRow));
    model_.ShowColors(std::move(colorsOf));
  }

 protected:
  RowsMirror(ListType& list, EventEdge& edge, ViewType& view)
      : MirrorOf<ListType, ViewType>(list, edge, view), model_(*new RowModel(list, &view)) {
    view.setModel(&model_);
  }

  RowModel& model_;
};

class PickListMirror : public RowsMirror<PickList, QComboBox> {
 public:
  PickListMirror(PickList& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;
};

class ListBoxMirror : public RowsMirror<ListBox, RowView> {
 public:
  ListBoxMirror(ListBox& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void SelectionChanged();
  void Chosen(int row);

  bool isFollowing_ = false;
};

class MarkListMirror : public RowsMirror<MarkList, RowView> {
 public:
  MarkListMirror(MarkList& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void SelectionChanged();

  bool isFollowing_ = false;
};

class ReportListMirror : public MirrorOf<ReportList, QTreeView> {
 public:
  ReportListMirror(ReportList& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;
};

}  // namespace wheelwright
