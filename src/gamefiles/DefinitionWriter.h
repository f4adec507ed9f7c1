// Writing default.ide.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// The new text of the open file: the file as it lies on disk is the template, and the whole table
// takes the place of the section's first line without a "#". The text has no line end of the final
// write. Makes the snapshot equal to the table. Throws what reading throws.
std::string RewriteDefinitionText(Session& session);

}  // namespace wheelwright
