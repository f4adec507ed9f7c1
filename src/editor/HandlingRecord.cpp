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
  TextField FrmMain::*field;
  std::size_t lang;
};

constexpr std::array<BoatCaption, 9> kBoatCaptions = {{
    {&FrmMain::txtTractionMulti, 169},
    {&FrmMain::txtTractionLoss, 170},
    {&FrmMain::txtTractionBias, 171},
    {&FrmMain::txtBrakeBias, 172},
    {&FrmMain::txtBremsstaerke, 173},
    {&FrmMain::txtKraftlevel, 174},
    {&FrmMain::txtDLevel, 175},
    {&FrmMain::txtULimit, 176},
    {&FrmMain::txtBias, 177},
}};

// The captions are set between this field and the next one.
constexpr auto kLastFieldBeforeCaptions = &Car::TractionBias;

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
  FieldText& abs = session.vars.ShownCar().ABS;
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
  for (const BoatCaption& caption : kBoatCaptions) {
    FieldLabels& labels = session.main.*caption.field;
    if (lineKind == kPercentLine) {
      labels.label.SetCaption(lang.at(caption.lang));
      labels.hint->SetCaption("");
    } else {
      labels.label.Translate(lang);
      labels.hint->Translate(lang);
    }
  }
}

}  // namespace wheelwright
