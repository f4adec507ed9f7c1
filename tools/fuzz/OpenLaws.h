// What holds for opening a file of any kind.
#pragma once

#include "core/Failure.h"
#include "screen/MainWindow.h"
#include "support/TestSession.h"

#include <string>

namespace wheelwright::fuzz {

// What opening makes of a file on the disk: with a bare line feed anywhere, all lines are joined
// and every line feed gets a carriage return in front.
std::string NormalisedPlainly(const std::string& text);

// "error: Error: 9 - Subscript out of range" for 9: what the desktop shows for a failure.
std::string BoxOf(int failure);

// The box of a damaged file.
std::string BoxOfDamagedLine(int line);

// The load has ended well: the commands and the tabs are enabled, nothing is pending, and the
// pointer is normal.
void RequireLoaded(testing::TestSession& test, const std::string& path, TabGroup FrmMain::*tabs);

// The load has ended with this box and the window is reset.
void RequireReset(testing::TestSession& test, const std::string& box);

// The open file is saved and what stands on the disk then.
std::string Saved(testing::TestSession& test);

}  // namespace wheelwright::fuzz
