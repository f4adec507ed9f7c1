// The mirrors of text box, check box and scroll bar.
#pragma once

#include "forms/qt/Mirror.h"
#include "screen/Controls.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>

namespace wheelwright {

class TextBoxMirror : public Mirror {
 public:
  TextBoxMirror(TextBox& box, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void Edited(const QString& text);

  TextBox& box_;
  QLineEdit& widget_;
  bool isBeingEdited_ = false;
};

class CheckBoxMirror : public Mirror {
 public:
  CheckBoxMirror(CheckBox& box, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  CheckBox& box_;
  QCheckBox& widget_;
};

class ScrollBarMirror : public Mirror {
 public:
  ScrollBarMirror(ScrollBar& bar, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void Moved(int value);

  ScrollBar& bar_;
  QScrollBar& widget_;
};

}  // namespace wheelwright
