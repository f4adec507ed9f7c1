#include "support/HeldTables.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

template <class Record>
void Hold(TestSession& session, const std::vector<Record>& records, Table<Record>& working,
          Table<Record>& snapshot, FieldText Record::*key) {
  session.main.cmbAutos.Clear();
  snapshot = Table<Record>();
  for (const Record& record : records) {
    const int next = snapshot.Count();
    snapshot.ExtendTo(next);
    snapshot.At(next) = record;
    session.main.cmbAutos.AddRow(record.*key);
  }
  working = snapshot;
}

}  // namespace

Car TaggedCar(const std::string& name, const std::string& tag) {
  Car car;
  car.CarName = name;
  car.Mass = "Mass " + tag;
  car.DimensionX = "DimensionX " + tag;
  car.DimensionY = "DimensionY " + tag;
  car.DimensionZ = "DimensionZ " + tag;
  car.CenterOfMassX = "CenterOfMassX " + tag;
  car.CenterOfMassY = "CenterOfMassY " + tag;
  car.CenterOfMassZ = "CenterOfMassZ " + tag;
  car.PercentSubmerged = "PercentSubmerged " + tag;
  car.TractionMultiplier = "TractionMultiplier " + tag;
  car.TractionLoss = "TractionLoss " + tag;
  car.TractionBias = "TractionBias " + tag;
  car.GearCount = "GearCount " + tag;
  car.MaxVelocity = "MaxVelocity " + tag;
  car.EngineAcceleration = "EngineAcceleration " + tag;
  car.DriveType = "F";
  car.EngineType = "P";
  car.BrakeDeceleration = "BrakeDeceleration " + tag;
  car.BrakeBias = "BrakeBias " + tag;
  car.ABS = "0";
  car.SteeringLock = "SteeringLock " + tag;
  car.SuspensionForceLevel = "SuspensionForceLevel " + tag;
  car.SuspensionDampingLevel = "SuspensionDampingLevel " + tag;
  car.SeatOffset = "SeatOffset " + tag;
  car.CollisionDamageMultiplier = "CollisionDamageMultiplier " + tag;
  car.MonetaryValue = "MonetaryValue " + tag;
  car.suspension_upper_limit = "suspension_upper_limit " + tag;
  car.suspension_lower_limit = "suspension_lower_limit " + tag;
  car.SuspensionBias = "SuspensionBias " + tag;
  car.SuspensionAntiDive = "SuspensionAntiDive " + tag;
  car.ModelFlags = "0000000";
  car.FrontLights = "0";
  car.RearLights = "0";
  return car;
}

IdeEntry TaggedIde(const std::string& handlingId, const std::string& tag) {
  return {.ID = "ID " + tag,
          .ModelName = "ModelName " + tag,
          .TXDName = "TXDName " + tag,
          .Typ = "boat",
          .HandlingID = handlingId,
          .GameName = "GameName " + tag,
          .Anim = "null",
          .Klasse = "normal",
          .Frequenz = "Frequenz " + tag,
          .Level = "Level " + tag,
          .CompRules = "CompRules " + tag,
          .Extra1 = "Extra1 " + tag,
          .Extra2 = "Extra2 " + tag};
}

void HoldCars(TestSession& session, const std::vector<Car>& cars) {
  session.vars.CurrentFileType = kHandlingFile;
  Hold(session, cars, session.vars.Cars, session.vars.Kopie_Cars, &Car::CarName);
}

void HoldIdes(TestSession& session, const std::vector<IdeEntry>& ides) {
  session.vars.CurrentFileType = kDefinitionFile;
  Hold(session, ides, session.vars.Ides, session.vars.Kopie_Ides, &IdeEntry::HandlingID);
}

void HoldCarColors(TestSession& session, const std::vector<ColorEntry>& colors,
                   const std::vector<CarColorEntry>& carColors) {
  session.vars.CurrentFileType = kColorFile;
  Hold(session, colors, session.vars.Colors, session.vars.Kopie_Colors, &ColorEntry::ColorName);
  Hold(session, carColors, session.vars.CarColors, session.vars.Kopie_CarColors, &CarColorEntry::ModelName);
}

void PickByHand(PickList& list, const std::string& text) {
  const auto found = std::find(list.Rows().begin(), list.Rows().end(), text);
  ASSERT_NE(found, list.Rows().end()) << text << " is no entry of " << list.Name();
  list.ChooseByHand(static_cast<int>(found - list.Rows().begin()));
}

}  // namespace wheelwright::testing
