#include "replay/Stage.h"

#include "forms/Wiring.h"

#include <utility>

namespace wheelwright::replay {

Stage::Stage(std::ostream& result, ReplayDesktop::PictureSizer sizer)
    : lines(result), desktop(lines, std::move(sizer)), edge(lines), session(desktop, settings, files) {
  WireEvents(session);
}

}  // namespace wheelwright::replay
