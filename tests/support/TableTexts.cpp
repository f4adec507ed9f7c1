#include "support/TableTexts.h"

#include "core/Text.h"

namespace wheelwright::testing {

std::string CrLf(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append(kLineEnd);
  return text;
}

std::string TextOf(const IdeEntry& entry) {
  std::string text = entry.ID;
  for (const FieldText& field :
       {entry.ModelName, entry.TXDName, entry.Typ, entry.HandlingID, entry.GameName, entry.Anim, entry.Klasse,
        entry.Frequenz, entry.Level, entry.CompRules, entry.Extra1, entry.Extra2}) {
    text += "|" + field;
  }
  return text;
}

std::string TextOf(const ColorEntry& entry) {
  return std::to_string(entry.Index) + ": " + std::to_string(entry.Red) + "," + std::to_string(entry.Green) +
         "," + std::to_string(entry.Blue) + " " + entry.ColorName;
}

std::string TextOf(const CarColorEntry& entry) {
  std::string text = entry.ModelName;
  for (const auto& [first, second] : entry.Pairs) {
    text += " " + std::to_string(first) + "," + std::to_string(second);
  }
  return text;
}

}  // namespace wheelwright::testing
