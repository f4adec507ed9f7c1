// What lies where in the windows. Each function builds and lays out the widgets of its controls.
#pragma once

#include "forms/qt/mirrors/MirrorSet.h"
#include "screen/MainWindow.h"
#include "screen/OtherWindows.h"

namespace wheelwright {

// Everything in one of the three windows, which is empty.
void LayOutMain(FrmMain& main, QWidget* window, MirrorSet& mirrors);
void LayOutError(FrmError& error, QWidget* window, MirrorSet& mirrors);
void LayOutExport(FrmExport& exporter, QWidget* window, MirrorSet& mirrors);

// The pages of one of the three tab groups.
void BuildHandlingPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);
void BuildDefinitionPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);
void BuildColorPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors);

// A page with nothing but a picture in its frame.
void BuildPicturePage(QWidget& page, Frame& frame, Picture& picture, MirrorSet& mirrors);

}  // namespace wheelwright
