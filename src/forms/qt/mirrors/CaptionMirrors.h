// The mirrors of what is little more than its captions: label, frame, button and tab group.
#pragma once

#include "forms/qt/mirrors/Mirror.h"
#include "screen/Controls.h"

#include <vector>

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace wheelwright {

// What a caption tells assistive technology about the widgets it belongs to, which outlive the last
// call of Say.
class SpokenCaption {
 public:
  void AddNamed(QWidget& widget);
  void AddDescribed(QWidget& widget);

  // Gives the caption, as it is read on screen, to all of them.
  void Say(const QString& caption);

 private:
  QString caption_;
  std::vector<QWidget*> named_;
  std::vector<QWidget*> described_;
};

class LabelMirror : public MirrorOf<Label, QLabel> {
 public:
  LabelMirror(Label& label, EventEdge& edge, QWidget* parent);

  // Makes the label the name of an input, and its mnemonic the way to it. Of several inputs on one
  // spot the one that shows is the mnemonic's.
  void Name(QWidget& input);
  // Makes the label the description of an input.
  void Describe(QWidget& input) { spoken_.AddDescribed(input); }

 protected:
  void FollowContent() override;

 private:
  SpokenCaption spoken_;
};

class FrameMirror : public MirrorOf<Frame, QGroupBox> {
 public:
  FrameMirror(Frame& frame, EventEdge& edge, QWidget* parent);

  // Makes the frame's caption the name of an input inside it.
  void Name(QWidget& input) { spoken_.AddNamed(input); }

 protected:
  void FollowContent() override;

 private:
  SpokenCaption spoken_;
};

// A frame without a caption, around a picture, of a fixed inner size. Its background is the
// window's, so that the picture stands out from nothing but a plain grey.
class PictureFrameMirror : public MirrorOf<Frame, QFrame> {
 public:
  PictureFrameMirror(Frame& frame, EventEdge& edge, QWidget* parent);
};

class ButtonMirror : public MirrorOf<Button, QPushButton> {
 public:
  ButtonMirror(Button& button, EventEdge& edge, QWidget* parent);

 protected:
  void FollowContent() override;
};

class TabGroupMirror : public MirrorOf<TabGroup, QTabWidget> {
 public:
  TabGroupMirror(TabGroup& group, EventEdge& edge, QWidget* parent);

  // The empty widget of a page, for its controls to be laid out on.
  QWidget& Page(int tab) const;
  // Makes a tab's caption the name of an input on its page.
  void Name(int tab, QWidget& input);

 protected:
  void Follow(Aspect aspect) override;

 private:
  std::vector<SpokenCaption> spoken_;
};

}  // namespace wheelwright
