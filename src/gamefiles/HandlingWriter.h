// Writing handling.cfg.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// The new text of the open file: the file as it lies on disk is the template, whose comments and
// special lines are copied; all vehicles of the list, in its order, take the place of the first
// line that is neither. The text has no line end of the final write. Throws what reading throws.
std::string RewriteHandlingText(Session& session);

}  // namespace wheelwright
