// The entries of the language table that code names: messages and changing captions. Those that
// belong to one control stand beside it in the tables of captions and fields.
#pragma once

#include <cstdint>

namespace wheelwright {

enum LangEntry : std::uint8_t {
  kFileIsMissing = 12,          // The chosen file doesn't exist.
  kOpenTitle = 13,              // Open a file
  kHandlingFiles = 14,          // Handling files
  kBackupWasMade = 60,          // A backup was made: (its path follows)
  kReplaceBackup = 61,          // There is already a backup of this file. Replace it?
  kVehicleWasAdded = 63,        // A new vehicle was added: (its name follows)
  kDeleteVehicle = 91,          // Delete the current vehicle?
  kVehicleWasDeleted = 92,      // The vehicle was deleted.
  kDiscardChanges = 98,         // Discard all changes since the file was last opened or saved?
  kChangesWereReverted = 99,    // All changes were reverted.
  kWrongNumberOfValues = 102,   // Wrong number of values: (the number follows)
  kInsteadOf33 = 103,           // instead of 33
  kMustNotBeNumber = 104,       // Must not be a number
  kMustBeNumber = 105,          // Must be a number
  kVehiclesWereExported = 113,  // The vehicles were exported.
  kImportTitle = 114,           // Import vehicles
  kImportIsDone = 115,          // The import is done.
  kFileWasSaved = 116,          // The file was saved.
  kExitAnyway = 117,            // There are unsaved changes. Exit anyway?
  kOpenAnyway = 118,            // There are unsaved changes. Open a file anyway?
  kManualIsMissing = 121,       // The manual wasn't found.
  kDefinitionFiles = 122,       // Definition files
  kExtra1OfCars = 145,          // Extra 1
  kExtra1InfoOfCars = 146,      // Type of wheel
  kExtra1InfoOfPlanes = 147,    // ID of the low-detail model
  kDamagedLine = 150,           // The file is damaged. Error in line (its number follows)
  kExtra1OfPlanes = 151,        // LOD model
  kColorFiles = 152,            // Colour files
  kRemoveColor = 153,           // Remove the chosen colour entry?
  kColorWasAdded = 154,         // A new colour was added.
};

}  // namespace wheelwright
