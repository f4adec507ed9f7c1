// All mirrors of the program, one for each plain control, built where the windows are laid out.
#pragma once

#include "forms/EventEdge.h"
#include "forms/qt/mirrors/AreaMirrors.h"
#include "forms/qt/mirrors/CaptionMirrors.h"
#include "forms/qt/mirrors/InputMirrors.h"
#include "forms/qt/mirrors/ListMirrors.h"

#include <map>
#include <memory>

namespace wheelwright {

class MirrorSet {
 public:
  explicit MirrorSet(EventEdge& edge) : edge_(edge) {}

  // Builds the control's widget inside the parent and binds the two. Widgets built later come later
  // in the tab order.
  auto& Add(Label& label, QWidget* parent) { return Keep<LabelMirror>(label, parent); }
  auto& Add(Frame& frame, QWidget* parent) { return Keep<FrameMirror>(frame, parent); }
  auto& Add(Button& button, QWidget* parent) { return Keep<ButtonMirror>(button, parent); }
  auto& Add(TextBox& box, QWidget* parent) { return Keep<TextBoxMirror>(box, parent); }
  auto& Add(CheckBox& box, QWidget* parent) { return Keep<CheckBoxMirror>(box, parent); }
  auto& Add(ScrollBar& bar, QWidget* parent) { return Keep<ScrollBarMirror>(bar, parent); }
  auto& Add(PickList& list, QWidget* parent) { return Keep<PickListMirror>(list, parent); }
  auto& Add(ListBox& list, QWidget* parent) { return Keep<ListBoxMirror>(list, parent); }
  auto& Add(MarkList& list, QWidget* parent) { return Keep<MarkListMirror>(list, parent); }
  auto& Add(ReportList& list, QWidget* parent) { return Keep<ReportListMirror>(list, parent); }
  auto& Add(TabGroup& group, QWidget* parent) { return Keep<TabGroupMirror>(group, parent); }
  auto& Add(Swatch& swatch, QWidget* parent) { return Keep<SwatchMirror>(swatch, parent); }
  auto& AddAround(Frame& frame, Picture& picture, QWidget* parent) {
    auto& around = Keep<PictureFrameMirror>(frame, parent);
    Keep<PictureMirror>(picture, &around.Widget());
    return around;
  }

  // The mirror of a control that has been added.
  Mirror& Of(const Control& control) const { return *mirrors_.at(&control); }

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
