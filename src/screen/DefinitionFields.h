// The thirteen fields of a vehicle definition, one row each, in the order of the fields of a line.
#pragma once

#include "core/Records.h"
#include "screen/MainWindow.h"

#include <array>
#include <string>
#include <vector>

namespace wheelwright {

// The field is shown by the rules of the vehicle's type and not by the display itself.
inline constexpr int kByTypeRules = -1;

struct DefinitionField {
  const char* name;  // as the record calls it
  std::string IdeEntry::*value;
  int displayOrder;  // its place in the order in which a display fills the controls
  DefinitionTab tab;
  int tabRow;  // counted from 0
  Label FrmMain::*label;
  const char* caption;  // design captions are UTF-8
  int captionLang;
  TextBox FrmMain::*text;  // text or pick is the input; Extra1 has cmbExtra1 on the same spot
  PickList FrmMain::*pick;
  Label FrmMain::*info;
  const char* infoCaption;
  int infoLang;
};

inline constexpr std::size_t kDefinitionFieldCount = 13;
extern const std::array<DefinitionField, kDefinitionFieldCount> kDefinitionFields;

// The rows that a display fills, in its order.
std::vector<const DefinitionField*> DefinitionFieldsByDisplay();

}  // namespace wheelwright
