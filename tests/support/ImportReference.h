// The import once more, as one would tell it: row by row, line by line, with the tokens of the
// handling file's reference. The laws hold the two against each other.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright::testing {

// Takes the vehicles of a file's text in, with a language whose entry n is "Ennn". Throws what the
// import fails with.
void PlainImport(Session& session, const std::string& text);

}  // namespace wheelwright::testing
