// The palette page. Row r of lstColors is entry r of the table; Index is a number of its own, which
// nothing renumbers before the next load.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// The click of lstColors: name and bars show the chosen colour. Whatever really changes runs its
// change handler, so clicking through different colours marks the file as changed. A component
// outside 0 to 255 puts its bar at the nearer end and keeps its value.
void ShowColor(Session& session);

// A bar and what belongs to it.
struct ColorBar {
  ScrollBar FrmMain::*bar;
  Label FrmMain::*valueLabel;
  std::int16_t ColorEntry::*component;
};
inline constexpr std::array<ColorBar, 3> kColorBars = {{
    {&FrmMain::HScroll1, &FrmMain::lblRotWert, &ColorEntry::Red},
    {&FrmMain::HScroll2, &FrmMain::lblGrünWert, &ColorEntry::Green},
    {&FrmMain::HScroll3, &FrmMain::lblBlauWert, &ColorEntry::Blue},
}};

// The change of a bar: swatch, value label, then the component of the chosen colour. Failure 9 if
// there are rows and none is chosen.
void StoreComponent(Session& session, const ColorBar& changed);

// The change of txtColorName. Failure 9 if there are rows and none is chosen.
void StoreColorName(Session& session);

// Adds a colour at the table's end and chooses it. Guarded.
void AddColor(Session& session);

// After a question, deletes the chosen colour; references to it become references to colour 0, all
// other references keep their numbers. Guarded.
void DeleteColor(Session& session);

}  // namespace wheelwright
