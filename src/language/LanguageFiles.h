// The language files "*.lng" beside the program, and the way of their texts to the screen.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Lists the languages in cmbSprache, in the order of their names, and chooses the stored one or the
// first. Without any language file a message is shown and the program ends. Failure 380 if the
// stored language isn't there, failure 9 for a file of more than 221 lines.
void DiscoverLanguages(Session& session);

// The click of cmbSprache: loads and applies the chosen language, stores the choice, and shows the
// vehicle anew, since some captions hang on it. Failures as above.
void ChooseLanguage(Session& session);

// Reads the file of the chosen language, if it is there, over the table and applies the table.
// Entries behind the file's end stay as they are.
void LoadChosenLanguage(Session& session);

// Writes every entry of the table to its caption, pick list row, tab or column in all three
// windows. No choice changes. A caption whose entry is empty becomes empty.
void ApplyLanguage(Session& session);

}  // namespace wheelwright
