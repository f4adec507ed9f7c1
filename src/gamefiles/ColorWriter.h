// Writing carcols.dat, in two passes over the file on disk.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Rewrites the palette section of the open file on disk, reads that file back and gives its text
// with the section of the pairs rewritten too, without the line end of the final write. Throws
// what reading and writing throw.
std::string RewriteColorFile(Session& session);

}  // namespace wheelwright
