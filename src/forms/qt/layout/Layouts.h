// What lies where in the windows. Each function builds and lays out the widgets of its controls.
#pragma once

#include "forms/qt/mirrors/MirrorSet.h"
#include "screen/MainWindow.h"
#include "screen/OtherWindows.h"

#include <QVBoxLayout>

namespace wheelwright {

// Everything in one of the three windows, which is empty.
void LayOutMain(FrmMain& main, QWidget* window, MirrorSet& mirrors);
void LayOutError(FrmError& error, QWidget* window, MirrorSet& mirrors);
void LayOutExport(FrmExport& exporter, QWidget* window, MirrorSet& mirrors);

// The pages of one of the three tab groups.
void BuildHandlingPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);
void BuildDefinitionPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);
void BuildColorPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);

// The columns of a page; where there is no hint, the value of the input stands there.
enum PageColumn { kLabelColumn, kInputColumn, kInfoColumn };

// The room on a page for its controls, with a gap around. On a wide screen it ends before the page does, so
// that what belongs together isn't torn apart.
QWidget& RoomOn(QWidget& page);

// The height of a row with any kind of input, so that rows keep the same distance on all pages. Builds
// such an input to ask it, which takes time.
int RowHeight(QWidget& page);

// A frame with one input in it, whose name is the frame's caption.
template <class Input>
QWidget* Framed(Frame& frame, Input& input, QWidget& parent, MirrorSet& mirrors) {
  FrameMirror& mirror = mirrors.Add(frame, &parent);
  QWidget& widget = mirrors.Add(input, &mirror.Widget()).Widget();
  mirror.Name(widget);
  (new QVBoxLayout(&mirror.Widget()))->addWidget(&widget);
  return &mirror.Widget();
}

}  // namespace wheelwright
