// The mirrors of the lists of rows: pick list, list box and the list box with marks.
#pragma once

#include "forms/qt/Mirror.h"
#include "forms/qt/RowModel.h"
#include "forms/qt/RowView.h"
#include "screen/Lists.h"

#include <QComboBox>

namespace wheelwright {

class PickListMirror : public Mirror {
 public:
  PickListMirror(PickList& list, EventEdge& edge, QWidget* parent);

  // Shows the colours that the rows tell of beside them.
  void ShowColors(ColorOfText colorOf);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void Chosen(int row);

  PickList& list_;
  QComboBox& widget_;
  RowModel& model_;
};

class ListBoxMirror : public Mirror {
 public:
  ListBoxMirror(ListBox& list, EventEdge& edge, QWidget* parent);

  // Shows the colours that the rows tell of beside them.
  void ShowColors(ColorOfText colorOf);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void SelectionChanged();
  void Chosen(int row);

  ListBox& list_;
  RowView& widget_;
  RowModel& model_;
  bool isFollowing_ = false;
};

class MarkListMirror : public Mirror {
 public:
  MarkListMirror(MarkList& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void SelectionChanged();

  MarkList& list_;
  RowView& widget_;
  RowModel& model_;
  bool isFollowing_ = false;
};

}  // namespace wheelwright
