#include "editor/HandlingRecord.h"

#include "core/Numbers.h"
#include "editor/ModelFlags.h"
#include "editor/VehiclePicture.h"
#include "screen/HandlingFields.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace wheelwright {
namespace {

struct BoatCaption {
  Label FrmMain::*label;
  int lang;
};

constexpr std::array<BoatCaption, 9> kBoatCaptions = {{
    {&FrmMain::lblTractionMulti, 169},
    {&FrmMain::lblTractionLoss, 170},
    {&FrmMain::lblTractionBias, 171},
    {&FrmMain::lblBrakeBias, 172},
    {&FrmMain::lblBremsstaerke, 173},
    {&FrmMain::lblKraftlevel, 174},
    {&FrmMain::lblDLevel, 175},
    {&FrmMain::lblULimit, 176},
    {&FrmMain::lblBias, 177},
}};

// The captions are set between the fields of this order and the next one.
constexpr int kLastFieldBeforeCaptions = 12;

Car& CurrentCarOf(Session& session) { return session.vars.Cars.At(session.vars.CurrentCar); }

const HandlingField& FieldOf(Label FrmMain::*label) {
  return *std::find_if(kHandlingFields.begin(), kHandlingFields.end(),
                       [=](const HandlingField& field) { return field.label == label; });
}

// The snapshot only has the vehicles of the last load or save; one behind its end is an ordinary
// one.
std::int16_t LineKindOfSnapshot(const Vars& vars) {
  if (vars.CurrentCar >= vars.Kopie_Cars.Count()) return kOrdinaryVehicle;
  return vars.Kopie_Cars.At(vars.CurrentCar).LineKind;
}

// A code that stands for no entry leaves the list as it was.
void ShowCode(Session& session, const CodeList& list) {
  const std::string code = CurrentCarOf(session).*list.value;
  const std::string_view codes = list.codes;
  for (std::size_t row = 0; row < codes.size(); ++row) {
    if (code == codes.substr(row, 1)) (session.main.*list.pick).Choose(static_cast<int>(row));
  }
}

// The box has three states; any other text shows an unticked box and stays in its field, which the
// box's handler would overwrite.
void ShowABS(Session& session) {
  std::string& abs = CurrentCarOf(session).ABS;
  if (abs.empty()) abs = "0";
  const std::string text = abs;
  const bool isState = text == "0" || text == "1" || text == "2";
  session.main.chkABS.SetState(isState ? ToInteger16(text) : 0);
  abs = text;
}

void ShowField(Session& session, const HandlingField& field) {
  if (field.text != nullptr) (session.main.*field.text).SetText(CurrentCarOf(session).*field.value);
  if (field.tick != nullptr) ShowABS(session);
  if (field.pick == nullptr) return;
  for (const CodeList& list : kCodeLists) {
    if (list.pick == field.pick) ShowCode(session, list);
  }
}

}  // namespace

void ShowHandlingRecord(Session& session) {
  Vars& vars = session.vars;
  const std::string key = session.main.cmbAutos.Text();
  ShowVehiclePicture(session, key, session.main.picCar);
  vars.CurrentCar = Checked16(std::max(0, vars.Cars.First(&Car::CarName, key)));
  for (const HandlingField* field : HandlingFieldsByDisplay()) {
    ShowField(session, *field);
    if (field->displayOrder == kLastFieldBeforeCaptions) {
      ApplyLineKindCaptions(session, LineKindOfSnapshot(vars));
    }
  }
  ShowModelFlags(session);
}

void ApplyLineKindCaptions(Session& session, std::int16_t lineKind) {
  const auto& lang = session.vars.Lang;
  const auto entry = [&](int index) { return lang[static_cast<std::size_t>(index)]; };
  const bool boat = lineKind == kPercentLine;
  for (const BoatCaption& caption : kBoatCaptions) {
    const HandlingField& field = FieldOf(caption.label);
    (session.main.*field.label).SetCaption(entry(boat ? caption.lang : field.captionLang));
    (session.main.*field.info).SetCaption(boat ? "" : entry(field.infoLang));
  }
}

}  // namespace wheelwright
