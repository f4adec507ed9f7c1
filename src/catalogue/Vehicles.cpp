#include "catalogue/Vehicles.h"

#include "core/Numbers.h"
#include "formats/HandlingLine.h"

#include <string>

namespace wheelwright {
namespace {

// A new vehicle is a line without tokens but for its name, an empty anti-dive and four flag digits.
void FillBlankVehicle(Car& car, const std::string& name) {
  for (const HandlingToken& token : kHandlingTokens) car.*token.value = token.missing;
  car.CarName = name;
  car.SuspensionAntiDive = {};
  car.ModelFlags = "0000";
}

Table<Car> WithoutVehicle(const Table<Car>& cars, const std::string& name) {
  Table<Car> kept;
  for (const Car& car : cars.Walk()) {
    if (car.CarName == name) continue;
    const int next = kept.Count();
    kept.ExtendTo(next);
    kept.At(next) = car;
  }
  return kept;
}

}  // namespace

void AddVehicle(Session& session) {
  Guarded(session, [&] {
    Table<Car>& cars = session.vars.Cars;
    cars.ExtendTo(cars.UpperBound() + 1);
    const std::int16_t count = Checked16(cars.UpperBound() + 1);
    const std::string name = "NEWCAR" + std::to_string(count);
    FillBlankVehicle(cars.At(cars.UpperBound()), name);
    session.main.cmbAutos.AddRow(name);
    session.vars.IsSaved = false;
    session.desktop.ShowInformation(Message(session, kVehicleWasAdded) + " '" + name + "'");
  });
}

void DeleteVehicle(Session& session) {
  Guarded(session, [&] {
    if (!session.desktop.AskYesNo(Message(session, kDeleteVehicle))) return;
    PickList& list = session.main.cmbAutos;
    const Table<Car> kept = WithoutVehicle(session.vars.Cars, list.Text());
    list.RemoveRow(list.Row());
    list.Choose(0);
    session.vars.Cars = kept;
    session.vars.IsSaved = false;
    session.desktop.ShowInformation(Message(session, kVehicleWasDeleted));
  });
}

}  // namespace wheelwright
