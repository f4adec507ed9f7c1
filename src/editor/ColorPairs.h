// The page of the colour pairs of a vehicle. A number of a pair is read as an Index by the labels
// and the removal, and as a row of the pick lists, which is a position in the palette, when a pair
// is shown or added. None of the handlers is guarded.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Lists the pairs of every entry whose model name is the chosen one, and makes the last such entry
// current. A colour number is looked up among the palette's Index values. The first pair of an
// entry is repaired: a number without a name there becomes the number of the palette's first
// colour. From the second pair on such a number keeps the name of the pair before it. Failure 9 if
// no colour file was ever loaded.
void ShowColorPairs(Session& session);

// The click on a tab: leaving the palette page fills the pick lists with the palette's rows anew
// and chooses their first rows. Failure 380 if the palette has no rows.
void RefreshPickLists(Session& session, int leftTab);

// The click of cmbColor1 or cmbColor2: fills its swatch. Failure 9 if the palette has no such
// entry.
void FillSwatch(Session& session, const PickList& list, Swatch& swatch);

// The click of lstCarColors: chooses the pair's colours in the pick lists. Failure 380 for a number
// behind their last row, failure 9 for a row that the current entry hasn't.
void ShowPair(Session& session);

// cmdAddColor: adds the chosen rows as a pair to the current vehicle. Failure 9 if nothing is
// chosen.
void AddPair(Session& session);

// cmdRemColor: after a question, removes the last pair whose first colour's name occurs in the text
// of the chosen row, which needn't be the chosen pair. Failure 9 if a first pair's colour isn't
// found.
void RemovePair(Session& session);

}  // namespace wheelwright
