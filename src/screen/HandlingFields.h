// The 33 fields of a vehicle, one row each, in the order of the tokens of a handling line. The
// parser, the display, the write-through, the language step and the layout all read these rows.
#pragma once

#include "core/Records.h"
#include "screen/MainWindow.h"

#include <array>
#include <string>

namespace wheelwright {

inline constexpr int kNoLang = -1;
// The field isn't a row of a tab: the 28 flag boxes show it.
inline constexpr int kNoTabRow = -1;

struct HandlingField {
  const char* name;  // as the record calls it
  std::string Car::*value;
  bool namedInProblems;  // whether a failed check names the field by its label's caption
  int displayOrder;      // its place in the order in which a display fills the controls
  HandlingTab tab;
  int tabRow;  // counted from 0
  Label FrmMain::*label;
  const char* caption;  // design captions are UTF-8
  int captionLang;
  TextBox FrmMain::*text;  // one of text, pick and check is the input
  PickList FrmMain::*pick;
  CheckBox FrmMain::*tick;
  Label FrmMain::*info;  // null where the field has no hint
  const char* infoCaption;
  int infoLang;
};

inline constexpr std::size_t kHandlingFieldCount = 33;
extern const std::array<HandlingField, kHandlingFieldCount> kHandlingFields;

// The same rows in the order in which a display fills the controls.
const std::array<const HandlingField*, kHandlingFieldCount>& HandlingFieldsByDisplay();

// A pick list whose entries are translated, so that its field is told by position: entry i stands
// for character i of the codes.
struct CodeList {
  PickList FrmMain::*pick;
  std::string Car::*value;
  const char* codes;
  std::array<const char*, 4> entries;  // design captions; null behind the last
  int firstLang;
};

extern const std::array<CodeList, 4> kCodeLists;

// The captions of chkFlag1 to chkFlag28: the game's own words, in no language.
extern const std::array<const char*, kFlagCount> kFlagCaptions;

}  // namespace wheelwright
