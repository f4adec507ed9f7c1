// Seven hexadecimal digits and 28 check boxes. Each digit is handled by itself; no number is
// computed.
//
//   0000803   ticks 1G_BOOST and 2G_BOOST, by the last digit, and NONPLAYER_STABILISER
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Shows the flags of the current vehicle: clears all boxes, ticks those of the digits, and stores
// the padded text last, since the boxes' handlers spoil it meanwhile.
void ShowModelFlags(Session& session);

// Ticks the boxes of the digits, which must all be clear, and gives the text padded with "0" in
// front to seven characters. Of a longer text the first seven characters count, and it is given as
// it is. A character that is no upper-case hexadecimal digit ticks nothing.
std::string SpreadModelFlags(FrmMain& main, std::string text);

// The digit that the four boxes of a group (1 to 7) make; empty if a box has another state than 0
// or 1.
std::string GetFlagDigit(const FrmMain& main, int group);

// The click of a flag box (1 to 28): rebuilds its group's digit in the current vehicle and marks
// the file as changed, which a click of chkFlag3 alone does not.
void StoreFlag(Session& session, int flag);

}  // namespace wheelwright
