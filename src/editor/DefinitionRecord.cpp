#include "core/Numbers.h"
#include "editor/ForeignEntry.h"
#include "editor/ShowVehicle.h"
#include "editor/TypeRules.h"
#include "editor/VehiclePicture.h"
#include "screen/Fields.h"

#include <algorithm>
#include <string>

namespace wheelwright {

void ShowDefinitionRecord(Session& session) {
  Vars& vars = session.vars;
  FrmMain& main = session.main;
  const std::string key = main.cmbAutos.Text();
  ShowVehiclePicture(session, key, main.picCar2);
  vars.CurrentIde = Checked16(std::max(0, vars.Ides.First(&IdeEntry::HandlingID, key)));
  for (const FieldRow<IdeEntry>& field :
       std::span(kDefinitionFields).first(kShownDefinitionFields)) {
    const std::string text = vars.ShownIde().*field.value;
    if (auto* const box = InputOf<TextBox>(main, field)) box->SetText(text);
    if (auto* const list = InputOf<PickList>(main, field)) {
      ChooseText(*list, field.entries.words.size(), text);
    }
  }
  TakeForeignEntryAway(main.cmbExtra1, kWheels.size());
  ApplyTypeRules(session);
}

}  // namespace wheelwright
