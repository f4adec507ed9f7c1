#include "editor/TypeRules.h"

#include "editor/ForeignEntry.h"
#include "screen/Fields.h"

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

void SetExtra1Captions(Session& session, LangEntry info, LangEntry caption) {
  session.main.lblExtra1Info.SetCaption(session.vars.Lang[info]);
  session.main.lblExtra1.SetCaption(session.vars.Lang[caption]);
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

void ShowCarRules(Session& session) {
  FrmMain& main = session.main;
  SetExtra1Captions(session, kExtra1InfoOfCars, kExtra1OfCars);
  main.txtExtra2.SetText(session.vars.ShownIde().Extra2);
  ShowWheel(session);
  main.lblExtra1.SetVisible(true);
  main.txtExtra1.SetVisible(false);
  main.cmbExtra1.SetVisible(true);
  main.lblExtra1Info.SetVisible(true);
  main.lblExtra2.SetVisible(true);
  main.txtExtra2.SetVisible(true);
  main.lblExtra2Info.SetVisible(true);
}

void ShowPlaneRules(Session& session) {
  FrmMain& main = session.main;
  main.txtExtra1.SetText(session.vars.ShownIde().Extra1);
  SetExtra1Captions(session, kExtra1InfoOfPlanes, kExtra1OfPlanes);
  main.lblExtra1.SetVisible(true);
  main.txtExtra1.SetVisible(true);
  main.cmbExtra1.SetVisible(false);
  main.lblExtra1Info.SetVisible(true);
  main.lblExtra2.SetVisible(false);
  main.txtExtra2.SetVisible(false);
  main.lblExtra2Info.SetVisible(false);
}

void HideExtras(FrmMain& main) {
  main.lblExtra1.SetVisible(false);
  main.txtExtra1.SetVisible(false);
  main.cmbExtra1.SetVisible(false);
  main.lblExtra1Info.SetVisible(false);
  main.lblExtra2.SetVisible(false);
  main.txtExtra2.SetVisible(false);
  main.lblExtra2Info.SetVisible(false);
}

}  // namespace

void ApplyTypeRules(Session& session) {
  const std::string type = session.vars.ShownIde().Typ;
  if (type == "car") {
    ShowCarRules(session);
  } else if (type == "plane") {
    ShowPlaneRules(session);
  } else {
    HideExtras(session.main);
  }
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
