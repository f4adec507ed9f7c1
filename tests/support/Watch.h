// Writes down, among what the desktop shows, in which order a handler sets controls and windows.
#pragma once

#include "support/TestSession.h"

#include <string>

namespace wheelwright::testing {

// "cmdSave on", "cmdSave off" each time the control is enabled or disabled.
void WatchEnabling(TestSession& test, Control& control);

// "SSTab1 shown", "SSTab1 hidden".
void WatchShowing(TestSession& test, Control& control);

// "cmbAutos: 3 rows" each time the rows change, "cmbAutos: row 0" each time a row is chosen.
void WatchRows(TestSession& test, RowList& list);

// "txtAuthor: text" each time the text changes.
void WatchText(TestSession& test, TextBox& box);

// "title: text" each time the main window is told its title.
void WatchTitle(TestSession& test);

}  // namespace wheelwright::testing
