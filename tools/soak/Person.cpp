#include "soak/Person.h"

#include "soak/PreparedAnswers.h"
#include "soak/RandomActions.h"

#include <optional>
#include <vector>

namespace wheelwright::soak {

Step Person::Next() {
  Step step = Idea();
  if (step.isForced) step.action["force"] = true;
  PrepareAnswers(dice_, session_, folder_, step);
  return step;
}

Step Person::Idea() {
  FrmMain& main = session_.main;
  const bool hasFile = main.FrameAutos.IsEnabled();
  if (!hasFile && !dice_.OneIn(3)) return Click(main.cmdOpen);
  const int idea = dice_.Below(200);
  if (idea < 80) return EditOnTabs();
  if (idea < 105) return PickVehicle();
  if (idea < 118) return Click(main.cmdSave);
  if (idea < 124) return Click(main.cmdSaveAs);
  if (idea < 132) return Click(main.cmdUndo);
  if (idea < 136) return Click(main.cmdBackup);
  if (idea < 146) return Click(main.cmdOpen);
  if (idea < 164) return Exchange();
  if (idea < 172) return Click(dice_.OneIn(2) ? main.cmdNewCar : main.cmdDeleteCar, true);
  if (idea < 175) return RandomAction(dice_, main.cmbSprache, false).value_or(Click(main.cmdHelp));
  if (idea < 177) return Click(dice_.OneIn(2) ? main.cmdHelp : main.cmdInfo);
  if (idea < 181) return CloseSomething();
  return AnythingAnywhere();
}

Step Person::EditOnTabs() {
  const std::vector<Control*> controls = ControlsOnTabs(session_);
  const std::optional<Step> step = RandomAction(dice_, *dice_.OneOf(controls), false);
  return step ? *step : AnythingAnywhere();
}

Step Person::PickVehicle() {
  const std::optional<Step> step = RandomAction(dice_, session_.main.cmbAutos, false);
  return step ? *step : AnythingAnywhere();
}

Step Person::Exchange() {
  FrmExport& window = session_.exporter;
  if (!window.IsVisible())
    return Click(dice_.OneIn(2) ? session_.main.cmdExportCar : session_.main.cmdImportCar);
  const std::vector<Control*> controls = {&window.lst1,      &window.lst1,      &window.lst2,
                                          &window.cmdAdd,    &window.cmdAdd,    &window.cmdDel,
                                          &window.cmdAddAll, &window.cmdDelAll, &window.cmdExport,
                                          &window.cmdExport, &window.cmdClose,  &window.Spez};
  Control& control = *dice_.OneOf(controls);
  return RandomAction(dice_, control, &control == &window.Spez).value();
}

Step Person::AnythingAnywhere() {
  const std::vector<Control*> controls = AllControls(session_);
  const bool isForced = dice_.OneIn(12);
  for (;;) {
    if (const auto step = RandomAction(dice_, *dice_.OneOf(controls), isForced)) return *step;
  }
}

Step Person::CloseSomething() {
  Step step;
  step.verb = "close";
  step.control = dice_.OneIn(30) ? "frmMain" : dice_.OneOf({"frmError", "frmExport"});
  step.action[step.verb] = step.control;
  return step;
}

}  // namespace wheelwright::soak
