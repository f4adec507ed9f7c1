#include "catalogue/Vehicles.h"
#include "support/Exchange.h"
#include "support/TableRecords.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;
using Rows = std::vector<std::string>;

const std::string kThreeVehicles =
    CrLf({VehicleLineOf("CAB", "1.0"), VehicleLineOf("AMBULAN", "2.0"), VehicleLineOf("BUS")});

void Add(TestSession& test) {
  test.desktop.shown.clear();
  test.main.cmdNewCar.ClickByHand();
}

void Delete(TestSession& test, bool yes = true) {
  test.desktop.shown.clear();
  test.desktop.answers.push_back(yes);
  test.main.cmdDeleteCar.ClickByHand();
}

// A new vehicle's values, written down once more.
Car BlankVehicle(const std::string& name) {
  Car car;
  car.CarName = name;
  for (FieldText Car::*field : {&Car::Mass,
                                &Car::DimensionX,
                                &Car::DimensionY,
                                &Car::DimensionZ,
                                &Car::CenterOfMassX,
                                &Car::CenterOfMassY,
                                &Car::CenterOfMassZ,
                                &Car::TractionMultiplier,
                                &Car::TractionLoss,
                                &Car::TractionBias,
                                &Car::MaxVelocity,
                                &Car::EngineAcceleration,
                                &Car::BrakeDeceleration,
                                &Car::BrakeBias,
                                &Car::SteeringLock,
                                &Car::SuspensionForceLevel,
                                &Car::SuspensionDampingLevel,
                                &Car::SeatOffset,
                                &Car::CollisionDamageMultiplier,
                                &Car::suspension_upper_limit,
                                &Car::suspension_lower_limit,
                                &Car::SuspensionBias}) {
    car.*field = "0.0";
  }
  for (FieldText Car::*field : {&Car::PercentSubmerged, &Car::GearCount, &Car::ABS, &Car::MonetaryValue,
                                &Car::FrontLights, &Car::RearLights}) {
    car.*field = "0";
  }
  car.DriveType = "F";
  car.EngineType = "P";
  car.ModelFlags = "0000";
  return car;
}

TEST(HiddenButtons, AreHidden) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  EXPECT_FALSE(test.main.cmdNewCar.IsVisible());
  EXPECT_FALSE(test.main.cmdDeleteCar.IsVisible());
}

TEST(AddVehicle, AppendsABlankVehicleAndSaysItsName) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  Add(test);
  EXPECT_EQ(test.desktop.shown, Shown{"information: E063 'NEWCAR4'"});
  std::vector<Car> expected = loaded;
  expected.push_back(BlankVehicle("NEWCAR4"));
  EXPECT_EQ(RecordsOf(test.vars.Cars), expected);
  EXPECT_EQ(RecordsOf(test.vars.Kopie_Cars), loaded);
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(AddVehicle, DoesNotChooseTheNewOne) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("CAB"), VehicleLineOf("VAN")}));
  test.main.cmbAutos.ChooseByHand(1);
  Add(test);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"CAB", "NEWCAR3", "VAN"}));
  EXPECT_EQ(test.main.cmbAutos.Text(), "VAN");
  EXPECT_EQ(test.vars.CurrentCar, 1);
}

TEST(AddVehicle, BeforeAnyLoadFailsAndChangesNothing) {
  TestSession test;
  Add(test);
  EXPECT_EQ(test.desktop.shown, Shown{"error: Error: 9 - Subscript out of range"});
  EXPECT_FALSE(test.vars.Cars.IsAllocated());
  EXPECT_EQ(test.main.cmbAutos.Rows(), Rows{});
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(AddVehicle, TwiceInARowCountsOn) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  Add(test);
  Add(test);
  EXPECT_EQ(test.desktop.shown, Shown{"information: E063 'NEWCAR5'"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"AMBULAN", "BUS", "CAB", "NEWCAR4", "NEWCAR5"}));
}

TEST(AddVehicle, AfterADeletionANumberCanComeAgain) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  Add(test);
  Delete(test);
  Add(test);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "CAB", "NEWCAR4", "NEWCAR4"}));
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"CAB", "BUS", "NEWCAR4", "NEWCAR4"}));
}

TEST(AddVehicle, CountsRecordsInSixteenBits) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  test.vars.Cars.ExtendTo(32766);
  Add(test);
  EXPECT_EQ(test.desktop.shown, Shown{"error: Error: 6 - Overflow"});
  EXPECT_EQ(test.main.cmbAutos.Count(), 3);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(AddVehicle, WithADefinitionFileOpenStillTouchesTheVehicles) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  test.OpenDefinition(
      CrLf({"cars", "130, cab, cab, car, TAXI, TAXI, null, taxi, 10, 7, 0, 251, 0.7", "end"}));
  const std::vector<IdeEntry> loaded = RecordsOf(test.vars.Ides);
  Add(test);
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"CAB", "AMBULAN", "BUS", "NEWCAR4"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"NEWCAR4", "TAXI"}));
  EXPECT_EQ(RecordsOf(test.vars.Ides), loaded);
}

TEST(DeleteVehicle, ANoChangesNothing) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  Delete(test, false);
  EXPECT_EQ(test.desktop.shown, Shown{"yesno: E091"});
  EXPECT_EQ(test.vars.Cars.Count(), 3);
  EXPECT_EQ(test.main.cmbAutos.Count(), 3);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(DeleteVehicle, TakesTheChosenOneOutOfTableAndList) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  test.main.cmbAutos.ChooseByHand(1);
  Delete(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E091", "information: E092"}));
  EXPECT_EQ(RecordsOf(test.vars.Cars), (std::vector<Car>{loaded.at(0), loaded.at(1)}));
  EXPECT_EQ(RecordsOf(test.vars.Kopie_Cars), loaded);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"AMBULAN", "CAB"}));
  EXPECT_EQ(test.main.cmbAutos.Row(), 0);
  EXPECT_EQ(test.main.txtAutoname.Text(), "AMBULAN");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(DeleteVehicle, TakesOutEveryRecordOfTheNameWithCase) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  test.vars.Cars.ExtendTo(5);
  test.vars.Cars.At(3).CarName = "AMBULAN";
  test.vars.Cars.At(4).CarName = "Ambulan";
  test.vars.Cars.At(5).CarName = "AMBULANCE";
  Delete(test);
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"CAB", "BUS", "Ambulan", "AMBULANCE"}));
}

// The first vehicle is shown while the old table still stands.
TEST(DeleteVehicle, LeavesTheIndexOneTooHighBehindTheDeletedRecord) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("CAB"), VehicleLineOf("AMBULAN"), VehicleLineOf("BUS")}));
  test.main.cmbAutos.ChooseByHand(2);
  Delete(test);
  EXPECT_EQ(test.main.txtAutoname.Text(), "AMBULAN");
  EXPECT_EQ(test.vars.CurrentCar, 1);
  test.main.txtGewicht.EditByHand("7");
  EXPECT_EQ(test.vars.Cars.At(0).Mass, "1500.0");
  EXPECT_EQ(test.vars.Cars.At(1).Mass, "7");
  test.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(test.vars.CurrentCar, 0);
}

TEST(DeleteVehicle, TheOnlyOneFailsAndStaysInTheTable) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
  const std::vector<Car> loaded = RecordsOf(test.vars.Cars);
  Delete(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E091", "error: Error: 380 - Invalid property value"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), Rows{});
  EXPECT_EQ(RecordsOf(test.vars.Cars), loaded);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(DeleteVehicle, ARenamedOneIsFoundByItsNewName) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  test.main.txtAutoname.EditByHand("TRUCK");
  Delete(test);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Rows{"BUS", "CAB"}));
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"CAB", "BUS"}));
}

TEST(DeleteVehicle, WithADefinitionFileOpenStillTouchesTheVehicles) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  test.OpenDefinition(CrLf({"cars", "130, cab, cab, car, CAB, TAXI, null, taxi, 10, 7, 0, 251, 0.7",
                            "131, van, van, car, VAN, VAN, null, normal, 10, 7, 0, 251, 0.7", "end"}));
  const std::vector<IdeEntry> loaded = RecordsOf(test.vars.Ides);
  Delete(test);
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"AMBULAN", "BUS"}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), Rows{"VAN"});
  EXPECT_EQ(RecordsOf(test.vars.Ides), loaded);
}

TEST(DeleteVehicle, BeforeAnyLoadFails) {
  TestSession test;
  Delete(test);
  EXPECT_EQ(test.desktop.shown, (Shown{"yesno: E091", "error: Error: 9 - Subscript out of range"}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(DeleteVehicle, WithNothingChosenFailsAndKeepsTheTable) {
  TestSession test;
  test.OpenHandling(kThreeVehicles);
  test.main.cmbAutos.RemoveRow(0);
  Delete(test);
  EXPECT_EQ(test.desktop.shown,
            (Shown{"yesno: E091", "error: Error: 5 - Invalid procedure call or argument"}));
  EXPECT_EQ(test.vars.Cars.Count(), 3);
  EXPECT_TRUE(test.vars.IsSaved);
}

}  // namespace
}  // namespace wheelwright::testing
