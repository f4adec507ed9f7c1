// One session of the editor, with its real windows and the event loop.
#pragma once

namespace wheelwright {

// Runs until the program ends and gives its exit code: 1 if a failure that nothing caught ended it.
// The toolkit's application must be there.
int RunProgram();

}  // namespace wheelwright
