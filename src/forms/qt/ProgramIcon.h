// The program's icon, as windows and the task bar show it.
#pragma once

#include <QIcon>

namespace wheelwright {

// In all sizes that a window needs, from 16 to 256 dots. Wants a running QGuiApplication.
QIcon ProgramIcon();

}  // namespace wheelwright
