// A session with the real windows, each action through the real widget.
#pragma once

#include "forms/qt/layout/WindowSet.h"
#include "replay/Stage.h"
#include "replay/WidgetHands.h"

#include <ostream>

namespace wheelwright::replay {

struct RealScreen {
  // The windows are built, none is on screen yet. A Toolkit must be there and outlive them.
  explicit RealScreen(std::ostream& result);

  // Lets no window be larger than a screen of this size, and makes the main one as large.
  void Fill(QSize size);

  Stage stage;
  WindowSet windows;
  WidgetHands hands;
};

}  // namespace wheelwright::replay
