// The real window of the load problems.
#pragma once

#include "forms/qt/MirrorSet.h"
#include "forms/qt/WindowShell.h"
#include "screen/OtherWindows.h"

namespace wheelwright {

class ErrorWindow : public WindowShell {
 public:
  ErrorWindow(FrmError& error, EventEdge& edge, MirrorSet& mirrors, QWidget* owner);
};

}  // namespace wheelwright
