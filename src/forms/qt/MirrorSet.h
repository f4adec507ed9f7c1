// All mirrors of the program, one for each plain control, built where the windows are laid out.
#pragma once

#include "forms/EventEdge.h"
#include "forms/qt/AreaMirrors.h"
#include "forms/qt/CaptionMirrors.h"
#include "forms/qt/InputMirrors.h"
#include "forms/qt/ListMirrors.h"
#include "forms/qt/ReportListMirror.h"
#include "forms/qt/TabGroupMirror.h"

#include <map>
#include <memory>

namespace wheelwright {

class MirrorSet {
 public:
  explicit MirrorSet(EventEdge& edge) : edge_(edge) {}

  // Builds the control's widget inside the parent and binds the two. Widgets built later come later
  // in the tab order.
  LabelMirror& Add(Label& label, QWidget* parent) { return Keep<LabelMirror>(label, parent); }
  FrameMirror& Add(Frame& frame, QWidget* parent) { return Keep<FrameMirror>(frame, parent); }
  ButtonMirror& Add(Button& button, QWidget* parent) { return Keep<ButtonMirror>(button, parent); }
  TextBoxMirror& Add(TextBox& box, QWidget* parent) { return Keep<TextBoxMirror>(box, parent); }
  CheckBoxMirror& Add(CheckBox& box, QWidget* parent) { return Keep<CheckBoxMirror>(box, parent); }
  ScrollBarMirror& Add(ScrollBar& bar, QWidget* parent) {
    return Keep<ScrollBarMirror>(bar, parent);
  }
  PickListMirror& Add(PickList& list, QWidget* parent) {
    return Keep<PickListMirror>(list, parent);
  }
  ListBoxMirror& Add(ListBox& list, QWidget* parent) { return Keep<ListBoxMirror>(list, parent); }
  MarkListMirror& Add(MarkList& list, QWidget* parent) {
    return Keep<MarkListMirror>(list, parent);
  }
  TabGroupMirror& Add(TabGroup& group, QWidget* parent) {
    return Keep<TabGroupMirror>(group, parent);
  }
  SwatchMirror& Add(Swatch& swatch, QWidget* parent) { return Keep<SwatchMirror>(swatch, parent); }
  ReportListMirror& Add(ReportList& list, QWidget* parent) {
    return Keep<ReportListMirror>(list, parent);
  }
  PictureFrameMirror& AddAround(Frame& frame, Picture& picture, QWidget* parent) {
    PictureFrameMirror& around = Keep<PictureFrameMirror>(frame, parent);
    Keep<PictureMirror>(picture, &around.Widget());
    return around;
  }

  // The mirror of a control that has been added.
  const Mirror& Of(const Control& control) const { return *mirrors_.at(&control); }

 private:
  template <class MirrorType, class ControlType>
  MirrorType& Keep(ControlType& control, QWidget* parent) {
    auto mirror = std::make_unique<MirrorType>(control, edge_, parent);
    MirrorType& kept = *mirror;
    mirrors_[&control] = std::move(mirror);
    return kept;
  }

  EventEdge& edge_;
  std::map<const Control*, std::unique_ptr<Mirror>> mirrors_;
};

}  // namespace wheelwright
