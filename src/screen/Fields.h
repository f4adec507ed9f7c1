// The fields of a vehicle and of a definition as the windows show them, one row each. The display,
// the write-through, the language step, the load problems and the layout all read these rows.
#pragma once

#include "core/Records.h"
#include "screen/MainWindow.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace wheelwright {

// What a pick list offers: words that are translated and told by their place, or the file's own
// words.
struct FieldEntries {
  std::span<const char* const> words;  // UTF-8
  int firstLang = kNoLang;
  std::string_view codes = {};  // entry i stands for character i; empty for the file's own words
};

using FieldInput = std::variant<TextField FrmMain::*, PickField FrmMain::*, TickField FrmMain::*>;

template <class Record>
struct FieldRow {
  FieldText Record::*value;
  FieldInput input;
  int tab = 0;
  int tabRow = 0;  // counted from 0
  bool isNamedInProblems = true;
  FieldEntries entries = {};
};

// Both in the order in which a display fills the controls. ModelFlags has no row: the 28 flag boxes
// show it. The last two definition fields are shown by the rules of the vehicle's type.
inline constexpr std::size_t kShownDefinitionFields = 11;
extern const std::array<FieldRow<Car>, 32> kHandlingFields;
extern const std::array<FieldRow<IdeEntry>, 13> kDefinitionFields;

// The control of one kind that is the field's input; null if its input is of another kind.
template <class Input, class Main, class Record>
auto InputOf(Main& main, const FieldRow<Record>& field) {
  const auto* const input = std::get_if<Labelled<Input> FrmMain::*>(&field.input);
  return input == nullptr ? nullptr : &(main.*(*input));
}

template <class Main, class Record>
auto& LabelsOf(Main& main, const FieldRow<Record>& field) {
  using Labels = std::conditional_t<std::is_const_v<Main>, const FieldLabels, FieldLabels>;
  return std::visit([&](auto input) -> Labels& { return main.*input; }, field.input);
}

// The captions of chkFlag1 to chkFlag28: the game's own words, in no language.
extern const std::array<const char*, kFlagCount> kFlagCaptions;

// The pick lists of a definition's tabs, in this order. cmbExtra1 has the wheels; it shares its
// spot with txtExtra1.
inline constexpr std::array kTypes = {"car", "boat", "bike", "heli", "plane"};
inline constexpr std::array kAnimations = {"null", "van", "biked", "bikeh", "bikes", "bikev", "coach"};
inline constexpr std::array kClasses = {"normal", "poorfamily", "richfamily", "leisureboat",
                                        "ignore", "big",        "executive",  "worker",
                                        "taxi",   "workerboat", "motorbike",  "moped"};
inline constexpr std::array kWheels = {"Rim",      "Offroad", "Truck", "Sport",      "Saloon",
                                       "Lightvan", "Classic", "Alloy", "Lighttruck", "Smallcar"};

}  // namespace wheelwright
