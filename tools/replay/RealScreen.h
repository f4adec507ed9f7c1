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

  Stage stage;
  WindowSet windows;
  WidgetHands hands;
};

}  // namespace wheelwright::replay
