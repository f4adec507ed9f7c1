// Every field of the table equals the box that shows it.
#include "oracle/ColorReference.h"
#include "screen/Fields.h"
#include "soak/Moment.h"
#include "support/TableRecords.h"

#include <cstddef>
#include <string_view>

namespace wheelwright::soak {
namespace {

void CheckFlags(const FrmMain& main, const std::string& flags) {
  Require(flags.size() == kFlagDigits, "ModelFlags has another length than the boxes");
  constexpr std::string_view kHex = "0123456789ABCDEF";
  for (std::size_t flag = 0; flag < kFlagCount; ++flag) {
    const std::size_t digit = kHex.find(flags[kFlagDigits - 1 - flag / 4]);
    const bool isSet = digit != std::string_view::npos && ((digit >> (flag % 4)) & 1U) != 0;
    Require(main.chkFlag[flag].State() == (isSet ? 1 : 0),
            "chkFlag" + std::to_string(flag + 1) + " shows another bit than ModelFlags " + flags);
  }
}

// A code that stands for no entry leaves its list as it was.
void CheckCode(const PickList& list, std::string_view codes, const std::string& code) {
  const std::size_t place = code.size() == 1 ? codes.find(code[0]) : std::string_view::npos;
  if (place == std::string_view::npos) return;
  Require(list.Row() == static_cast<int>(place), list.Name() + " shows another code");
}

template <class Record>
void CheckField(const FrmMain& main, const FieldRow<Record>& field, const Record& record) {
  const std::string& value = record.*field.value;
  if (const auto* const box = InputOf<TextBox>(main, field)) {
    Require(box->Text() == value, box->Name() + " isn't what stands in its field");
  } else if (const auto* const list = InputOf<PickList>(main, field)) {
    if (!field.entries.codes.empty()) return CheckCode(*list, field.entries.codes, value);
    Require(list->Text() == value, list->Name() + " isn't what stands in its field");
  }
}

void CheckHandling(const FrmMain& main, const Car& car) {
  for (const FieldRow<Car>& field : kHandlingFields) CheckField(main, field, car);
  const int state = car.ABS == "1" ? 1 : car.ABS == "2" ? 2 : 0;
  Require(main.chkABS.State() == state, "chkABS shows another state than ABS " + car.ABS);
}

void CheckDefinition(const FrmMain& main, const IdeEntry& entry) {
  for (std::size_t i = 0; i < kShownDefinitionFields; ++i) {
    CheckField(main, kDefinitionFields[i], entry);
  }
  if (entry.Typ == "car") Require(main.txtExtra2.Text() == entry.Extra2, "txtExtra2 isn't Extra2");
  if (entry.Typ == "plane") Require(main.txtExtra1.Text() == entry.Extra1, "txtExtra1 isn't Extra1");
}

void CheckPalette(const FrmMain& main, const std::vector<ColorEntry>& colors) {
  Require(main.lstColors.Rows().size() == colors.size(), "lstColors has another count than Colors");
  for (std::size_t i = 0; i < colors.size(); ++i) {
    Require(main.lstColors.Rows()[i] == testing::PlainLabel(colors[i]),
            "row " + std::to_string(i) + " of lstColors isn't its colour");
  }
}

}  // namespace

void CheckBoxesAndFields(const Session& session, const Shown& shown) {
  const Vars& vars = session.vars;
  if (shown.handling) CheckHandling(session.main, vars.Cars.At(vars.CurrentCar));
  if (shown.flags) CheckFlags(session.main, vars.Cars.At(vars.CurrentCar).ModelFlags);
  if (shown.definition) CheckDefinition(session.main, vars.Ides.At(vars.CurrentIde));
  if (shown.palette) CheckPalette(session.main, testing::RecordsOf(vars.Colors));
}

}  // namespace wheelwright::soak
