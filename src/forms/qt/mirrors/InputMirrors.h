// The mirrors of text box, check box and scroll bar.
#pragma once

#include "forms/qt/mirrors/Mirror.h"
#include "screen/Controls.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>

namespace wheelwright {

class TextBoxMirror : public MirrorOf<TextBox, QLineEdit> {
 public:
  TextBoxMirror(TextBox& box, EventEdge& edge, QWidget* parent);

 protected:
  void FollowContent() override;

 private:
  void Edited(const QString& text);

  bool isBeingEdited_ = false;
};

class CheckBoxMirror : public MirrorOf<CheckBox, QCheckBox> {
 public:
  CheckBoxMirror(CheckBox& box, EventEdge& edge, QWidget* parent);

 protected:
  void FollowContent() override;
};

class ScrollBarMirror : public MirrorOf<ScrollBar, QScrollBar> {
 public:
  ScrollBarMirror(ScrollBar& bar, EventEdge& edge, QWidget* parent);

 protected:
  void FollowContent() override;
};

}  // namespace wheelwright
