// The mirrors of the lists of rows: pick list, list box and the list box with marks.
#pragma once

#include "forms/qt/mirrors/Mirror.h"
#include "forms/qt/mirrors/Rows.h"
#include "forms/qt/widgets/Swatches.h"
#include "screen/Lists.h"

#include <QComboBox>

namespace wheelwright {

template <class ListType, class ViewType>
class RowsMirror : public MirrorOf<ListType, ViewType> {
 public:
  // Shows the colours that the rows tell of beside them.
  void ShowColors(ColorOfText colorOf) {
    this->widget_.setIconSize(SwatchIconSize(this->widget_));
    model_.ShowColors(colorOf);
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

}  // namespace wheelwright
