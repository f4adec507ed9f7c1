// Writing carcols.dat, in two passes over the file on disk.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Rewrites the palette section of the open file on disk and gives the text of that file with the
// section of the pairs rewritten too, without the line end of the final write, which is to follow
// at once. Throws what reading and writing throw, and failure 61, with the file as it was, if the
// target has no room.
std::string RewriteColorFile(Session& session, const std::string& target);

}  // namespace wheelwright
