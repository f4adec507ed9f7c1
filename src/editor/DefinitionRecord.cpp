#include "editor/DefinitionRecord.h"

#include "core/Numbers.h"
#include "editor/VehiclePicture.h"
#include "screen/Fields.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace wheelwright {
namespace {

struct Wheel {
  std::string_view identifier;
  std::string_view name;
};

// One wheel more than cmbExtra1 offers.
constexpr std::array<Wheel, 11> kWheelTable = {{
    {"237", "Rim"},
    {"238", "Offroad"},
    {"239", "Truck"},
    {"250", "Sport"},
    {"251", "Saloon"},
    {"252", "Lightvan"},
    {"253", "Classic"},
    {"254", "Alloy"},
    {"255", "Lighttruck"},
    {"256", "Smallcar"},
    {"257", "Airtrain_vlo"},
}};

// Takes away what an earlier display added behind the fixed entries.
void TakeForeignEntryAway(PickList& list, std::size_t fixedEntries) {
  while (list.Rows().size() > fixedEntries) list.RemoveRow(list.Count() - 1);
}

// A text that a fixed list lacks is one further entry at its end while its vehicle is on screen, so
// that no value is lost or stands for another.
void ChooseText(PickList& list, std::size_t fixedEntries, const std::string& text) {
  TakeForeignEntryAway(list, fixedEntries);
  const auto found = std::find(list.Rows().begin(), list.Rows().end(), text);
  const auto row = found - list.Rows().begin();
  if (found == list.Rows().end()) list.AddRow(text);
  list.Choose(static_cast<int>(row));
}

void SetExtra1Captions(Session& session, LangEntry info, LangEntry caption) {
  session.main.lblExtra1Info.SetCaption(session.vars.Lang[info]);
  session.main.txtExtra1.label.SetCaption(session.vars.Lang[caption]);
}

// An identifier without a name leaves the list as it was.
void ShowWheel(Session& session) {
  const std::string identifier = session.vars.ShownIde().Extra1;
  for (const Wheel& wheel : kWheelTable) {
    if (wheel.identifier == identifier) {
      ChooseText(session.main.cmbExtra1, kWheels.size(), std::string(wheel.name));
      return;
    }
  }
}

void ShowExtras(FrmMain& main, bool ofCar, bool ofPlane) {
  main.cmbExtra1.SetVisible(ofCar);
  main.txtExtra1.SetVisible(ofPlane);
  main.txtExtra1.label.SetVisible(ofCar || ofPlane);
  main.lblExtra1Info.SetVisible(ofCar || ofPlane);
  main.txtExtra2.SetVisible(ofCar);
  main.txtExtra2.label.SetVisible(ofCar);
  main.txtExtra2.hint->SetVisible(ofCar);
}

}  // namespace

void ShowDefinitionRecord(Session& session) {
  Vars& vars = session.vars;
  FrmMain& main = session.main;
  const std::string key = main.cmbAutos.Text();
  ShowVehiclePicture(session, key, main.picCar2);
  vars.CurrentIde = Checked16(std::max(0, vars.Ides.First(&IdeEntry::HandlingID, key)));
  for (const FieldRow<IdeEntry>& field : std::span(kDefinitionFields).first(kShownDefinitionFields)) {
    const std::string text = vars.ShownIde().*field.value;
    if (auto* const box = InputOf<TextBox>(main, field)) box->SetText(text);
    if (auto* const list = InputOf<PickList>(main, field)) {
      ChooseText(*list, field.entries.words.size(), text);
    }
  }
  TakeForeignEntryAway(main.cmbExtra1, kWheels.size());
  ApplyTypeRules(session);
}

void ApplyTypeRules(Session& session) {
  FrmMain& main = session.main;
  const IdeEntry& definition = session.vars.ShownIde();
  const bool isCar = definition.Typ == "car";
  const bool isPlane = definition.Typ == "plane";
  if (isCar) {
    SetExtra1Captions(session, kExtra1InfoOfCars, kExtra1OfCars);
    main.txtExtra2.SetText(definition.Extra2);
    ShowWheel(session);
  }
  if (isPlane) {
    SetExtra1Captions(session, kExtra1InfoOfPlanes, kExtra1OfPlanes);
    main.txtExtra1.SetText(definition.Extra1);
  }
  ShowExtras(main, isCar, isPlane);
}

void StoreType(Session& session) {
  session.vars.IsSaved = false;
  session.vars.ShownIde().Typ = session.main.cmbTyp.Text();
  ApplyTypeRules(session);
}

void StoreWheel(Session& session) {
  session.vars.IsSaved = false;
  const std::string name = session.main.cmbExtra1.Text();
  for (const Wheel& wheel : kWheelTable) {
    if (wheel.name == name) {
      session.vars.ShownIde().Extra1 = wheel.identifier;
      return;
    }
  }
}

}  // namespace wheelwright
