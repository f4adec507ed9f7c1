// What questions of a script are answered with.
#pragma once

#include "core/Vars.h"
#include "replay/Json.h"
#include "screen/Control.h"

namespace wheelwright::replay {

Json ReplyAbout(const Control& control);
Json ReplyAbout(const Window& window);
Json ReplyAbout(const Vars& vars);

}  // namespace wheelwright::replay
