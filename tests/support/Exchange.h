// What tests of the exchange do over and over.
#pragma once

#include "support/TestSession.h"
#include "support/VehicleTokens.h"

#include <string>

namespace wheelwright::testing {

inline constexpr const char* kExportPath = "/swap/out.cfg";
inline constexpr const char* kImportPath = "/swap/in.cfg";

// Opens the export window and moves every vehicle to the right.
void ChooseAllForExport(TestSession& test);

// Writes the vehicles of the right list to kExportPath and gives what stands there then.
std::string ExportChosen(TestSession& test);

// Puts a text on the disk as kImportPath and imports it as a person would. What the desktop showed
// before is forgotten.
void Import(TestSession& test, const std::string& text);

}  // namespace wheelwright::testing
