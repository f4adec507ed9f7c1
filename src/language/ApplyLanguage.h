// From the language table to the captions of all three windows.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Writes every entry to its caption, pick list row, tab or column. No choice changes. A caption
// whose entry is empty becomes empty.
void ApplyLanguage(Session& session);

}  // namespace wheelwright
