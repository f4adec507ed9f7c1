// What a replayed session stands on, the same with and without real windows.
#pragma once

#include "core/DiskFiles.h"
#include "replay/MemorySettings.h"
#include "replay/ReplayDesktop.h"
#include "replay/ReplayEdge.h"
#include "replay/ResultLines.h"
#include "screen/Session.h"

#include <chrono>
#include <ostream>

namespace wheelwright::replay {

struct Stage {
  // The session's events are wired, its start-up hasn't run.
  Stage(std::ostream& result, ReplayDesktop::PictureSizer sizer);
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  std::chrono::steady_clock::time_point clockTold = std::chrono::steady_clock::now();
  ResultLines lines;
  ReplayDesktop desktop;
  MemorySettings settings;
  DiskFiles files;
  ReplayEdge edge;
  Session session;
};

}  // namespace wheelwright::replay
