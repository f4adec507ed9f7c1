// A vehicle of the handling file on screen.
#include "editor/ShowVehicle.h"
#include "support/HeldTables.h"
#include "support/TableRecords.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace wheelwright::testing {
namespace {

struct ShownText {
  TextField FrmMain::*box;
  const char* text;
};

// Notes each control of the main window at its first change, but for the list of vehicles. The
// labels, which change together, are one.
class Changes {
 public:
  explicit Changes(FrmMain& main) {
    for (Control* control : main.Controls()) {
      if (control == &main.cmbAutos) continue;
      const bool isLabel = dynamic_cast<Label*>(control) != nullptr;
      const std::string name = isLabel ? "captions" : control->Name();
      control->notice = [this, name](Aspect) { Note(name); };
    }
  }

  std::vector<std::string> names;

 private:
  void Note(const std::string& name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
};

const std::vector<std::string> kDisplayOrder = {"picCar",
                                                "txtAutoname",
                                                "txtGewicht",
                                                "txtBreite",
                                                "txtHoehe",
                                                "txtLaenge",
                                                "txtMassenmittelpX",
                                                "txtMassenmittelpY",
                                                "txtMassenmittelpZ",
                                                "txtSubMerged",
                                                "txtTractionMulti",
                                                "txtTractionLoss",
                                                "txtTractionBias",
                                                "captions",
                                                "txtGaenge",
                                                "txtGeschwindigkeit",
                                                "txtBeschleunigung",
                                                "cmbAntrieb",
                                                "cmbMotor",
                                                "txtBremsstaerke",
                                                "txtBrakeBias",
                                                "chkABS",
                                                "txtRadeinschlag",
                                                "txtKraftlevel",
                                                "txtDLevel",
                                                "txtOLimit",
                                                "txtULimit",
                                                "txtBias",
                                                "txtDive",
                                                "txtPedSeat",
                                                "txtKoll",
                                                "txtPreis",
                                                "cmbFrontLichter",
                                                "cmbRearLichter",
                                                "chkFlag1"};

TEST(HandlingRecord, ShowsEachTextInItsBox) {
  TestSession s;
  HoldCars(s, {TaggedCar("AXO", "a"), TaggedCar("BYL", "b")});
  s.main.cmbAutos.Choose(1);
  const std::vector<ShownText> expected = {
      {&FrmMain::txtAutoname, "BYL"},
      {&FrmMain::txtGewicht, "Mass b"},
      {&FrmMain::txtBreite, "DimensionX b"},
      {&FrmMain::txtHoehe, "DimensionY b"},
      {&FrmMain::txtLaenge, "DimensionZ b"},
      {&FrmMain::txtMassenmittelpX, "CenterOfMassX b"},
      {&FrmMain::txtMassenmittelpY, "CenterOfMassY b"},
      {&FrmMain::txtMassenmittelpZ, "CenterOfMassZ b"},
      {&FrmMain::txtSubMerged, "PercentSubmerged b"},
      {&FrmMain::txtTractionMulti, "TractionMultiplier b"},
      {&FrmMain::txtTractionLoss, "TractionLoss b"},
      {&FrmMain::txtTractionBias, "TractionBias b"},
      {&FrmMain::txtGaenge, "GearCount b"},
      {&FrmMain::txtGeschwindigkeit, "MaxVelocity b"},
      {&FrmMain::txtBeschleunigung, "EngineAcceleration b"},
      {&FrmMain::txtBremsstaerke, "BrakeDeceleration b"},
      {&FrmMain::txtBrakeBias, "BrakeBias b"},
      {&FrmMain::txtRadeinschlag, "SteeringLock b"},
      {&FrmMain::txtKraftlevel, "SuspensionForceLevel b"},
      {&FrmMain::txtDLevel, "SuspensionDampingLevel b"},
      {&FrmMain::txtOLimit, "suspension_upper_limit b"},
      {&FrmMain::txtULimit, "suspension_lower_limit b"},
      {&FrmMain::txtBias, "SuspensionBias b"},
      {&FrmMain::txtDive, "SuspensionAntiDive b"},
      {&FrmMain::txtPedSeat, "SeatOffset b"},
      {&FrmMain::txtKoll, "CollisionDamageMultiplier b"},
      {&FrmMain::txtPreis, "MonetaryValue b"},
  };
  for (const ShownText& shown : expected) EXPECT_EQ((s.main.*shown.box).Text(), shown.text);
}

TEST(HandlingRecord, FillsTheControlsInTheOrderOfTheDisplay) {
  TestSession s;
  Car car = TaggedCar("BYL", "b");
  car.ABS = "1";
  car.ModelFlags = "0000001";
  HoldCars(s, {TaggedCar("AXO", "a"), car});
  const Changes changes(s.main);
  s.main.cmbAutos.Choose(1);
  EXPECT_EQ(changes.names, kDisplayOrder);
}

TEST(HandlingRecord, MakesTheVehicleCurrentBeforeTheFirstControlIsFilled) {
  TestSession s;
  HoldCars(s, {TaggedCar("AXO", "a"), TaggedCar("BYL", "b")});
  s.main.cmbAutos.Choose(0);
  int current = -1;
  s.main.txtAutoname.notice = [&](Aspect) { current = s.vars.CurrentCar; };
  s.main.cmbAutos.Choose(1);
  EXPECT_EQ(current, 1);
  EXPECT_EQ(s.vars.CurrentCar, 1);
}

TEST(HandlingRecord, LeavesEveryFieldOfEveryVehicleAsItWas) {
  TestSession s;
  Car odd = TaggedCar("BYL", "b");
  odd.DriveType = "4";
  odd.EngineType = "E";
  odd.ABS = "1";
  odd.ModelFlags = "08F0A01";
  odd.FrontLights = "3";
  odd.RearLights = "2";
  const std::vector<Car> cars = {TaggedCar("AXO", "a"), odd, TaggedCar("CID", "c")};
  HoldCars(s, cars);
  for (const int row : {0, 1, 2, 1, 0, 2}) s.main.cmbAutos.ChooseByHand(row);
  EXPECT_EQ(RecordsOf(s.vars.Cars), cars);
  EXPECT_EQ(RecordsOf(s.vars.Kopie_Cars), cars);
  EXPECT_EQ(s.main.cmbAutos.Rows(), (std::vector<std::string>{"AXO", "BYL", "CID"}));
}

struct ShownCode {
  FieldText Car::*field;
  PickField FrmMain::*list;
  const char* code;
  int row;
};

class Code : public ::testing::TestWithParam<ShownCode> {};

TEST_P(Code, ChoosesItsEntry) {
  const ShownCode& shown = GetParam();
  TestSession s;
  Car car = TaggedCar("BYL", "b");
  car.*shown.field = shown.code;
  HoldCars(s, {TaggedCar("AXO", "a"), car});
  s.main.cmbAutos.Choose(0);
  (s.main.*shown.list).ChooseByHand(shown.row == 0 ? 1 : 0);
  s.main.cmbAutos.Choose(1);
  EXPECT_EQ((s.main.*shown.list).Row(), shown.row);
  EXPECT_EQ(s.vars.Cars.At(1), car);
}

INSTANTIATE_TEST_SUITE_P(HandlingRecord, Code,
                         ::testing::Values(ShownCode{&Car::DriveType, &FrmMain::cmbAntrieb, "F", 0},
                                           ShownCode{&Car::DriveType, &FrmMain::cmbAntrieb, "R", 1},
                                           ShownCode{&Car::DriveType, &FrmMain::cmbAntrieb, "4", 2},
                                           ShownCode{&Car::EngineType, &FrmMain::cmbMotor, "P", 0},
                                           ShownCode{&Car::EngineType, &FrmMain::cmbMotor, "D", 1},
                                           ShownCode{&Car::EngineType, &FrmMain::cmbMotor, "E", 2},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "0", 0},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "1", 1},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "2", 2},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "3", 3},
                                           ShownCode{&Car::RearLights, &FrmMain::cmbRearLichter, "0", 0},
                                           ShownCode{&Car::RearLights, &FrmMain::cmbRearLichter, "1", 1},
                                           ShownCode{&Car::RearLights, &FrmMain::cmbRearLichter, "2", 2},
                                           ShownCode{&Car::RearLights, &FrmMain::cmbRearLichter, "3", 3}));

class UnknownCode : public ::testing::TestWithParam<ShownCode> {};

TEST_P(UnknownCode, KeepsThePreviousVehiclesChoiceAndTheField) {
  const ShownCode& shown = GetParam();
  TestSession s;
  Car before = TaggedCar("AXO", "a");
  before.DriveType = "4";
  before.EngineType = "E";
  before.FrontLights = "2";
  before.RearLights = "2";
  Car car = TaggedCar("BYL", "b");
  car.*shown.field = shown.code;
  HoldCars(s, {before, car});
  s.main.cmbAutos.Choose(0);
  s.main.cmbAutos.Choose(1);
  EXPECT_EQ((s.main.*shown.list).Row(), 2);
  EXPECT_EQ(s.vars.Cars.At(1), car);
  EXPECT_EQ(s.vars.Cars.At(0), before);
}

INSTANTIATE_TEST_SUITE_P(HandlingRecord, UnknownCode,
                         ::testing::Values(ShownCode{&Car::DriveType, &FrmMain::cmbAntrieb, "f", 2},
                                           ShownCode{&Car::DriveType, &FrmMain::cmbAntrieb, "", 2},
                                           ShownCode{&Car::DriveType, &FrmMain::cmbAntrieb, "FR", 2},
                                           ShownCode{&Car::EngineType, &FrmMain::cmbMotor, "p", 2},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "4", 2},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "", 2},
                                           ShownCode{&Car::FrontLights, &FrmMain::cmbFrontLichter, "01", 2},
                                           ShownCode{&Car::RearLights, &FrmMain::cmbRearLichter, "4", 2},
                                           ShownCode{&Car::RearLights, &FrmMain::cmbRearLichter, "", 2}));

struct ShownABS {
  const char* field;
  int state;
  const char* fieldAfterwards;
};

class ABS : public ::testing::TestWithParam<ShownABS> {};

TEST_P(ABS, ShowsItsStateAndOnlyAnEmptyFieldIsRepaired) {
  TestSession s;
  Car car = TaggedCar("AXO", "a");
  car.ABS = GetParam().field;
  for (const char* before : {"0", "1", "2"}) {
    Car other = TaggedCar("BYL", "b");
    other.ABS = before;
    HoldCars(s, {car, other});
    s.main.cmbAutos.Choose(1);
    s.main.cmbAutos.Choose(0);
    EXPECT_EQ(s.main.chkABS.State(), GetParam().state);
    EXPECT_EQ(s.vars.Cars.At(0).ABS, GetParam().fieldAfterwards);
    EXPECT_EQ(s.vars.Cars.At(1).ABS, before);
    EXPECT_TRUE(s.vars.IsSaved);
  }
}

INSTANTIATE_TEST_SUITE_P(HandlingRecord, ABS,
                         ::testing::Values(ShownABS{"0", 0, "0"}, ShownABS{"1", 1, "1"},
                                           ShownABS{"2", 2, "2"}, ShownABS{"", 0, "0"}, ShownABS{"3", 0, "3"},
                                           ShownABS{"-1", 0, "-1"}, ShownABS{"yes", 0, "yes"},
                                           ShownABS{"1.0", 0, "1.0"}));

TEST(HandlingRecord, PadsTheFlagsInTheRecordWithoutMarkingTheFileAsChanged) {
  TestSession s;
  Car car = TaggedCar("AXO", "a");
  car.ModelFlags = "3";
  HoldCars(s, {car});
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.vars.Cars.At(0).ModelFlags, "0000003");
  EXPECT_EQ(s.vars.Kopie_Cars.At(0).ModelFlags, "3");
  EXPECT_EQ(s.main.chkFlag[0].State(), 1);
  EXPECT_EQ(s.main.chkFlag[1].State(), 1);
  EXPECT_TRUE(s.vars.IsSaved);
}

TEST(HandlingRecord, TwoVehiclesOfOneNameAreBothShownAsTheFirst) {
  TestSession s;
  HoldCars(s, {TaggedCar("AXO", "x"), TaggedCar("BYL", "first"), TaggedCar("BYL", "second")});
  for (const int row : {1, 2}) {
    s.main.cmbAutos.ChooseByHand(row);
    EXPECT_EQ(s.vars.CurrentCar, 1);
    EXPECT_EQ(s.main.txtGewicht.Text(), "Mass first");
  }
}

TEST(HandlingRecord, ANameIsFoundByItsVeryBytes) {
  TestSession s;
  HoldCars(s, {TaggedCar("bus", "lower"), TaggedCar("BUS ", "blank"), TaggedCar("BUS", "exact")});
  PickByHand(s.main.cmbAutos, "BUS");
  EXPECT_EQ(s.vars.CurrentCar, 2);
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass exact");
}

TEST(HandlingRecord, AnEntryWithoutAVehicleShowsRecordZeroUnderItsOwnName) {
  TestSession s;
  HoldCars(s, {TaggedCar("AXO", "a"), TaggedCar("BYL", "b")});
  s.main.cmbAutos.AddRow("CID");
  PickByHand(s.main.cmbAutos, "BYL");
  PickByHand(s.main.cmbAutos, "CID");
  EXPECT_EQ(s.vars.CurrentCar, 0);
  EXPECT_EQ(s.main.txtAutoname.Text(), "AXO");
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass a");
  EXPECT_EQ(s.main.cmbAutos.Rows(), (std::vector<std::string>{"AXO", "BYL", "CID"}));
  EXPECT_EQ(s.main.cmbAutos.Text(), "CID");
  EXPECT_TRUE(s.vars.IsSaved);
  EXPECT_EQ(s.vars.Cars.At(0), TaggedCar("AXO", "a"));
}

TEST(HandlingRecord, WithoutAnyTableTheDisplayFails) {
  TestSession s;
  s.main.cmbAutos.AddRow("AXO");
  EXPECT_THROW(s.main.cmbAutos.Choose(0), Failure);
}

}  // namespace
}  // namespace wheelwright::testing
