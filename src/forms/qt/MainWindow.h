// The real main window.
#pragma once

#include "forms/qt/MirrorSet.h"
#include "forms/qt/WindowShell.h"
#include "screen/MainWindow.h"

namespace wheelwright {

class MainWindow : public WindowShell {
 public:
  MainWindow(FrmMain& main, EventEdge& edge, MirrorSet& mirrors);
};

}  // namespace wheelwright
