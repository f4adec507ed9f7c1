#include "core/Numbers.h"
#include "editor/ModelFlags.h"
#include "editor/ShowVehicle.h"
#include "editor/VehiclePicture.h"
#include "screen/Fields.h"

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

// The captions are set between this field and the next one.
constexpr auto kLastFieldBeforeCaptions = &Car::TractionBias;

const FieldRow<Car>& FieldOf(Label FrmMain::*label) {
  return *std::find_if(kHandlingFields.begin(), kHandlingFields.end(),
                       [=](const FieldRow<Car>& field) { return field.label.control == label; });
}

// The snapshot only has the vehicles of the last load or save; one behind its end is an ordinary
// one.
std::int16_t LineKindOfSnapshot(const Vars& vars) {
  if (vars.CurrentCar >= vars.Kopie_Cars.Count()) return kOrdinaryVehicle;
  return vars.Kopie_Cars.At(vars.CurrentCar).LineKind;
}

// A code that stands for no entry leaves the list as it was.
void ShowCode(Session& session, const FieldRow<Car>& field, PickList& list) {
  const std::string code = session.vars.ShownCar().*field.value;
  const std::string_view codes = field.entries.codes;
  for (std::size_t row = 0; row < codes.size(); ++row) {
    if (code == codes.substr(row, 1)) list.Choose(static_cast<int>(row));
  }
}

// The box has three states; any other text shows an unticked box and stays in its field, which the
// box's handler would overwrite.
void ShowABS(Session& session) {
  std::string& abs = session.vars.ShownCar().ABS;
  if (abs.empty()) abs = "0";
  const std::string text = abs;
  const bool isState = text == "0" || text == "1" || text == "2";
  session.main.chkABS.SetState(isState ? ToInteger16(text) : 0);
  abs = text;
}

void ShowField(Session& session, const FieldRow<Car>& field) {
  if (auto* const text = InputOf<TextBox>(session.main, field)) {
    text->SetText(session.vars.ShownCar().*field.value);
  } else if (auto* const list = InputOf<PickList>(session.main, field)) {
    ShowCode(session, field, *list);
  } else {
    ShowABS(session);
  }
}

}  // namespace

void ShowHandlingRecord(Session& session) {
  Vars& vars = session.vars;
  const std::string key = session.main.cmbAutos.Text();
  ShowVehiclePicture(session, key, session.main.picCar);
  vars.CurrentCar = Checked16(std::max(0, vars.Cars.First(&Car::CarName, key)));
  for (const FieldRow<Car>& field : kHandlingFields) {
    ShowField(session, field);
    if (field.value == kLastFieldBeforeCaptions) {
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
    const FieldRow<Car>& field = FieldOf(caption.label);
    (session.main.*caption.label).SetCaption(entry(boat ? caption.lang : field.label.lang));
    (session.main.*field.hint.control).SetCaption(boat ? "" : entry(field.hint.lang));
  }
}

}  // namespace wheelwright
