#include "editor/DefinitionRecord.h"

#include "core/Numbers.h"
#include "editor/ForeignEntry.h"
#include "editor/TypeRules.h"
#include "editor/VehiclePicture.h"
#include "screen/DefinitionFields.h"
#include "screen/FixedEntries.h"

#include <algorithm>
#include <string>

namespace wheelwright {
namespace {

std::size_t FixedEntriesOf(PickList FrmMain::*pick) {
  if (pick == &FrmMain::cmbTyp) return kTypes.size();
  if (pick == &FrmMain::cmbAnim) return kAnimations.size();
  return kClasses.size();
}

}  // namespace

void ShowDefinitionRecord(Session& session) {
  Vars& vars = session.vars;
  FrmMain& main = session.main;
  const std::string key = main.cmbAutos.Text();
  ShowVehiclePicture(session, key, main.picCar2);
  vars.CurrentIde = Checked16(std::max(0, vars.Ides.First(&IdeEntry::HandlingID, key)));
  for (const DefinitionField* field : DefinitionFieldsByDisplay()) {
    const std::string text = vars.Ides.At(vars.CurrentIde).*field->value;
    if (field->text != nullptr) (main.*field->text).SetText(text);
    if (field->pick != nullptr) ChooseText(main.*field->pick, FixedEntriesOf(field->pick), text);
  }
  TakeForeignEntryAway(main.cmbExtra1, kWheels.size());
  ApplyTypeRules(session);
}

}  // namespace wheelwright
