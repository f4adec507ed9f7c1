// The mirrors of what is little more than a caption: label, frame and button.
#pragma once

#include "forms/qt/Mirror.h"
#include "forms/qt/SpokenCaption.h"
#include "screen/Controls.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace wheelwright {

class LabelMirror : public Mirror {
 public:
  LabelMirror(Label& label, EventEdge& edge, QWidget* parent);

  // Makes the label the name of an input, and its mnemonic the way to it. Of several inputs on one
  // spot the one that shows is the mnemonic's.
  void Name(QWidget& input);
  // Makes the label the description of an input.
  void Describe(QWidget& input);

 protected:
  void Follow(Aspect aspect) override;

 private:
  QString Meant() const;

  Label& label_;
  QLabel& widget_;
  SpokenCaption spoken_;
};

class FrameMirror : public Mirror {
 public:
  FrameMirror(Frame& frame, EventEdge& edge, QWidget* parent);

  QGroupBox& Box() const { return widget_; }
  // Makes the frame's caption the name of an input inside it.
  void Name(QWidget& input) { spoken_.AddNamed(input); }

 protected:
  void Follow(Aspect aspect) override;

 private:
  Frame& frame_;
  QGroupBox& widget_;
  SpokenCaption spoken_;
};

// A frame without a caption, around a picture, of a fixed inner size. Its background is the
// window's, so that the picture stands out from nothing but a plain grey.
class PictureFrameMirror : public Mirror {
 public:
  PictureFrameMirror(Frame& frame, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect /*aspect*/) override {}
};

class ButtonMirror : public Mirror {
 public:
  ButtonMirror(Button& button, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  Button& button_;
  QPushButton& widget_;
};

}  // namespace wheelwright
