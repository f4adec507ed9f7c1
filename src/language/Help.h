// The two buttons that give help. Neither handler is guarded.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// cmdHelp: hands the manual beside the program to the desktop, or says that it is missing.
void OpenManual(Session& session);

// cmdInfo: the about message, the same in every language.
void ShowAbout(Session& session);

}  // namespace wheelwright
