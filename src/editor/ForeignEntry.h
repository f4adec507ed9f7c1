// Texts that a fixed pick list lacks: shown as one further entry at its end while their vehicle is
// on screen, so that no value is lost or stands for another.
#pragma once

#include "screen/Lists.h"

#include <string>

namespace wheelwright {

// Takes away what an earlier display added behind the fixed entries.
void TakeForeignEntryAway(PickList& list, std::size_t fixedEntries);

// Takes an earlier foreign entry away and chooses the entry with the text, adding it if the list
// lacks it. Runs the list's click.
void ChooseText(PickList& list, std::size_t fixedEntries, const std::string& text);

}  // namespace wheelwright
