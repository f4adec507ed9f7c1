// The pages of the three tab groups. Each function builds and lays out the widgets of its group's
// controls.
#pragma once

#include "forms/qt/MirrorSet.h"
#include "screen/MainWindow.h"

namespace wheelwright {

void BuildHandlingPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);
void BuildDefinitionPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);
void BuildColorPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);

// A page with nothing but a picture in its frame.
void BuildPicturePage(QWidget& page, Frame& frame, Picture& picture, MirrorSet& mirrors);

}  // namespace wheelwright
