// Every field of the table equals the box that shows it.
#include "screen/DefinitionFields.h"
#include "screen/HandlingFields.h"
#include "soak/Moment.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace wheelwright::soak {
namespace {

void CheckFlags(const FrmMain& main, const std::string& flags) {
  Must(flags.size() == kFlagDigits, "ModelFlags has another length than the boxes");
  constexpr std::string_view kHex = "0123456789ABCDEF";
  for (std::size_t flag = 0; flag < kFlagCount; ++flag) {
    const std::size_t digit = kHex.find(flags[kFlagDigits - 1 - flag / 4]);
    const bool isSet = digit != std::string_view::npos && ((digit >> (flag % 4)) & 1U) != 0;
    Must(main.chkFlag[flag].State() == (isSet ? 1 : 0),
         "chkFlag" + std::to_string(flag + 1) + " shows another bit than ModelFlags " + flags);
  }
}

void CheckCodes(const FrmMain& main, const Car& car) {
  for (const CodeList& list : kCodeLists) {
    const std::string& code = car.*list.value;
    const std::size_t place =
        code.size() == 1 ? std::string_view(list.codes).find(code[0]) : std::string_view::npos;
    if (place == std::string_view::npos) continue;
    Must((main.*list.pick).Row() == static_cast<int>(place), "a pick list shows another code");
  }
}

void CheckHandling(const FrmMain& main, const Car& car) {
  for (const HandlingField& field : kHandlingFields) {
    if (field.text == nullptr) continue;
    Must((main.*field.text).Text() == car.*field.value,
         std::string(field.name) + " isn't what its box shows");
  }
  const int state = car.ABS == "1" ? 1 : car.ABS == "2" ? 2 : 0;
  Must(main.chkABS.State() == state, "chkABS shows another state than ABS " + car.ABS);
  CheckCodes(main, car);
}

void CheckDefinition(const FrmMain& main, const IdeEntry& entry) {
  for (const DefinitionField& field : kDefinitionFields) {
    if (field.displayOrder == kByTypeRules) continue;
    const std::string& shown =
        field.text != nullptr ? (main.*field.text).Text() : std::as_const(main.*field.pick).Text();
    Must(shown == entry.*field.value, std::string(field.name) + " isn't what its box shows");
  }
  if (entry.Typ == "car") Must(main.txtExtra2.Text() == entry.Extra2, "txtExtra2 isn't Extra2");
  if (entry.Typ == "plane") Must(main.txtExtra1.Text() == entry.Extra1, "txtExtra1 isn't Extra1");
}

void CheckPalette(const FrmMain& main, const std::vector<ColorEntry>& colors) {
  Must(main.lstColors.Rows().size() == colors.size(), "lstColors has another count than Colors");
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const ColorEntry& color = colors[i];
    Must(main.lstColors.Rows()[i] == color.ColorName + " - " + std::to_string(color.Red) + "," +
                                         std::to_string(color.Green) + "," +
                                         std::to_string(color.Blue),
         "row " + std::to_string(i) + " of lstColors isn't its colour");
  }
}

}  // namespace

void CheckBoxesAndFields(const Session& session, const Shown& shown) {
  const Vars& vars = session.vars;
  if (shown.handling) CheckHandling(session.main, vars.Cars.At(vars.CurrentCar));
  if (shown.flags) CheckFlags(session.main, vars.Cars.At(vars.CurrentCar).ModelFlags);
  if (shown.definition) CheckDefinition(session.main, vars.Ides.At(vars.CurrentIde));
  if (shown.palette) CheckPalette(session.main, RecordsIn(vars.Colors));
}

}  // namespace wheelwright::soak
