// The program: its icon, and one session with its real windows and the event loop. Both want the
// toolkit's application to be there.
#pragma once

#include <QIcon>

namespace wheelwright {

// As windows and the task bar show it: in all sizes that they need, from 16 to 256 dots.
QIcon ProgramIcon();

// Runs until the program ends and gives its exit code: 1 if a failure that nothing caught ended it.
int RunProgram();

}  // namespace wheelwright
