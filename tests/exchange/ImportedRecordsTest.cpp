// What the second pass of an import makes of the lines: every row of the list takes part in it.
#include "exchange/Import.h"
#include "support/Exchange.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<std::string>;
using Problems = std::vector<ReportList::Row>;

// A session with a bus into which a text has been imported; records and problems of the import.
class Imported {
 public:
  explicit Imported(const std::string& text, const std::string& renamedBus = "BUS") {
    test.OpenHandling(CrLf({VehicleLineOf("BUS")}));
    test.main.txtAutoname.SetText(renamedBus);
    Import(test, text);
  }

  Rows Names() const {
    const Rows all = NamesOf(test.vars.Cars);
    return {all.begin() + 1, all.end()};
  }
  Rows List() const { return test.main.cmbAutos.Rows(); }
  Problems Told() const { return test.error.lstErrors.Rows(); }

  TestSession test;
};

TEST(ImportedRecords, TakeThe33TokensInTheirOrder) {
  const Imported imported(
      "VAN             t1 t2 t3 t4 t5 t6 t7 t8 t9 t10 t11 t12 t13 t14 t15 t16 t17 t18 t19 t20 t21 "
      "t22 t23 t24 t25 t26 t27 t28 t29 t30flags t31 t32\r\n");
  Car expected;
  int token = 0;
  for (std::string Car::*slot : {&Car::CarName,
                                 &Car::Mass,
                                 &Car::DimensionX,
                                 &Car::DimensionY,
                                 &Car::DimensionZ,
                                 &Car::CenterOfMassX,
                                 &Car::CenterOfMassY,
                                 &Car::CenterOfMassZ,
                                 &Car::PercentSubmerged,
                                 &Car::TractionMultiplier,
                                 &Car::TractionLoss,
                                 &Car::TractionBias,
                                 &Car::GearCount,
                                 &Car::MaxVelocity,
                                 &Car::EngineAcceleration,
                                 &Car::DriveType,
                                 &Car::EngineType,
                                 &Car::BrakeDeceleration,
                                 &Car::BrakeBias,
                                 &Car::ABS,
                                 &Car::SteeringLock,
                                 &Car::SuspensionForceLevel,
                                 &Car::SuspensionDampingLevel,
                                 &Car::SeatOffset,
                                 &Car::CollisionDamageMultiplier,
                                 &Car::MonetaryValue,
                                 &Car::suspension_upper_limit,
                                 &Car::suspension_lower_limit,
                                 &Car::SuspensionBias,
                                 &Car::SuspensionAntiDive,
                                 &Car::ModelFlags,
                                 &Car::FrontLights,
                                 &Car::RearLights}) {
    expected.*slot = "t" + std::to_string(token++);
  }
  expected.CarName = "VAN";
  expected.ModelFlags = "t30flags";
  EXPECT_EQ(imported.test.vars.Cars.At(1), expected);
}

TEST(ImportedRecords, ComeInTheOrderOfTheFile) {
  const Imported imported(
      CrLf({VehicleLineOf("VAN"), VehicleLineOf("CAB"), VehicleLineOf("DERBY")}));
  EXPECT_EQ(imported.Names(), (Rows{"VAN", "CAB", "DERBY"}));
}

TEST(ImportedRecords, HaveNoLineKindWhateverTheMark) {
  const Imported imported(CrLf({"% VAN         1500.0"}));
  EXPECT_EQ(imported.Names(), Rows{"%"});
  EXPECT_EQ(imported.test.vars.Cars.At(1).LineKind, kOrdinaryVehicle);
}

TEST(ImportedRecords, AWrongCountIsToldAndMissingTokensAreDefaults) {
  const Imported imported(CrLf({"VAN           1500.0"}));
  EXPECT_EQ(imported.Told(), (Problems{{"VAN", "", "E102: 2 E103"}}));
  EXPECT_TRUE(imported.test.error.IsVisible());
  const Car& van = imported.test.vars.Cars.At(1);
  EXPECT_EQ(van.CarName, "VAN");
  EXPECT_EQ(van.Mass, "1500.0");
  EXPECT_EQ(van.DimensionX, "0.0");
  EXPECT_EQ(van.DriveType, "F");
  EXPECT_EQ(van.ModelFlags, "0000000");
  EXPECT_EQ(van.RearLights, "0");
  EXPECT_EQ(imported.test.LastShown(), "information: E115");
}

TEST(ImportedRecords, TokensBehindThe33rdAreToldAndDropped) {
  const Imported imported(VehicleLineOf("VAN") + " 7 ; remark\r\n");
  EXPECT_EQ(imported.Told(), (Problems{{"VAN", "", "E102: 36 E103"}}));
  EXPECT_EQ(imported.test.vars.Cars.At(1).RearLights, "1");
}

TEST(ImportedRecords, TokensAreCheckedBehindTheCount) {
  const Imported imported(CrLf({"7             heavy"}));
  EXPECT_EQ(imported.Told(),
            (Problems{{"7", "", "E102: 2 E103"}, {"7", "E015", "E104"}, {"7", "E017", "E105"}}));
  EXPECT_EQ(imported.test.vars.Cars.At(1).Mass, "heavy");
}

TEST(ImportedRecords, EarlierProblemsStayInTheWindow) {
  Imported imported(CrLf({"VAN           1500.0"}));
  Import(imported.test, CrLf({"CAB           1500.0"}));
  EXPECT_EQ(imported.Told(), (Problems{{"VAN", "", "E102: 2 E103"}, {"CAB", "", "E102: 2 E103"}}));
}

TEST(ImportedRecords, WithoutAProblemTheWindowStaysHidden) {
  const Imported imported(CrLf({VehicleLineOf("VAN")}));
  EXPECT_EQ(imported.Told(), Problems{});
  EXPECT_FALSE(imported.test.error.IsVisible());
}

TEST(ImportedRecords, AKnownVehicleGetsASecondOneOutOfSight) {
  Imported imported(CrLf({VehicleLineOf("BUS", "9.0")}));
  EXPECT_EQ(imported.List(), Rows{"BUS"});
  EXPECT_EQ(imported.Names(), Rows{"BUS"});
  EXPECT_EQ(imported.test.vars.Cars.At(1).Mass, "9.0");
  imported.test.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(imported.test.vars.CurrentCar, 0);
  EXPECT_EQ(imported.test.main.txtGewicht.Text(), "1500.0");
}

TEST(ImportedRecords, ANameThatBeginsAnotherTakesItsLineToo) {
  const Imported imported(CrLf({VehicleLineOf("BUSX", "9.0")}));
  EXPECT_EQ(imported.List(), (Rows{"BUS", "BUSX"}));
  EXPECT_EQ(imported.Names(), (Rows{"BUSX", "BUSX"}));
  EXPECT_EQ(imported.test.vars.Cars.At(1), imported.test.vars.Cars.At(2));
  EXPECT_EQ(imported.test.vars.Cars.At(2).Mass, "9.0");
}

TEST(ImportedRecords, EachRecordOfALineTellsItsProblems) {
  const Imported imported(CrLf({"BUSX          1500.0"}));
  EXPECT_EQ(imported.Told(),
            (Problems{{"BUSX", "", "E102: 2 E103"}, {"BUSX", "", "E102: 2 E103"}}));
}

TEST(ImportedRecords, TwoEqualRowsTakeALineTwice) {
  TestSession test;
  test.OpenHandling(CrLf({VehicleLineOf("BUS"), VehicleLineOf("CAB")}));
  test.main.txtAutoname.EditByHand("CAB");
  Import(test, CrLf({VehicleLineOf("CAB", "9.0")}));
  EXPECT_EQ(NamesOf(test.vars.Cars), (Rows{"CAB", "CAB", "CAB", "CAB"}));
}

TEST(ImportedRecords, NamesAreComparedWithCase) {
  const Imported imported(CrLf({"bus 1"}));
  EXPECT_EQ(imported.Names(), Rows{});
}

TEST(ImportedRecords, AShortLineOfAKnownNameIsTaken) {
  const Imported imported(CrLf({"BUS 7.5"}));
  EXPECT_EQ(imported.Names(), Rows{"BUS"});
  EXPECT_EQ(imported.test.vars.Cars.At(1).Mass, "7.5");
  EXPECT_EQ(imported.Told(), (Problems{{"BUS", "", "E102: 2 E103"}}));
}

TEST(ImportedRecords, ACommentOfAKnownNameIsTaken) {
  const Imported imported(CrLf({"BUS;           the old one"}));
  EXPECT_EQ(imported.Names(), Rows{"BUS;"});
}

TEST(ImportedRecords, AnIndentedLineIsListedButNotTaken) {
  const Imported imported(" " + VehicleLineOf("VAN") + "\r\n");
  EXPECT_EQ(imported.List(), (Rows{"BUS", "VAN"}));
  EXPECT_EQ(imported.Names(), Rows{});
}

TEST(ImportedRecords, AnEmptyRowTakesEveryLine) {
  const Imported imported(CrLf({"; remark", "", "              1", VehicleLineOf("VAN")}));
  EXPECT_EQ(imported.List(), (Rows{"", "BUS", "VAN"}));
  EXPECT_EQ(imported.Names(), (Rows{";", "0.0", "1", "VAN", "VAN"}));
  EXPECT_EQ(imported.Told(), (Problems{{";", "", "E102: 2 E103"},
                                       {";", "E017", "E105"},
                                       {"0.0", "", "E102: 0 E103"},
                                       {"1", "", "E102: 1 E103"},
                                       {"1", "E015", "E104"}}));
}

// The first record of a line leaves it with single blanks and none in front.
TEST(ImportedRecords, RowsBehindTheFirstHitMeetTheCleanedLine) {
  const Imported imported(CrLf({"              1", "  BUS  7"}));
  EXPECT_EQ(imported.List(), (Rows{"", "BUS"}));
  EXPECT_EQ(imported.Names(), (Rows{"1", "BUS", "BUS"}));
}

TEST(ImportedRecords, ARowWithTwoBlanksMissesTheCleanedLine) {
  const Imported alone(CrLf({"MAIL  VAN 7"}), "MAIL  VAN");
  EXPECT_EQ(alone.Names(), Rows{"MAIL"});
  const Imported behindAnother(CrLf({"MAIL          1", "MAIL  VAN 7"}), "MAIL  VAN");
  EXPECT_EQ(behindAnother.List(), (Rows{"MAIL", "MAIL  VAN"}));
  EXPECT_EQ(behindAnother.Names(), (Rows{"MAIL", "MAIL"}));
}

TEST(ImportedRecords, ARowWithATabMissesTheCleanedLine) {
  const Imported imported(CrLf({"BUS\t1500.0\t1.9\t4.6"}));
  EXPECT_EQ(imported.List(), (Rows{"BUS", "BUS\t1500.0\t1.9"}));
  EXPECT_EQ(imported.Names(), Rows{"BUS"});
}

TEST(ImportedRecords, ATabSeparatedLineIsNamedByItsFirstToken) {
  const Imported imported(CrLf({"VAN\t1500.0\t1.9\t4.6"}));
  EXPECT_EQ(imported.List(), (Rows{"BUS", "VAN\t1500.0\t1.9"}));
  EXPECT_EQ(imported.Names(), Rows{"VAN"});
  EXPECT_EQ(imported.test.vars.Cars.At(1).DimensionX, "1.9");
}

TEST(ImportedRecords, ALongNameIsCutInTheListOnly) {
  const Imported imported(CrLf({VehicleLineOf("FIFTEENLETTERSX")}));
  EXPECT_EQ(imported.List(), (Rows{"BUS", "FIFTEENLETTERS"}));
  EXPECT_EQ(imported.Names(), Rows{"FIFTEENLETTERSX"});
  EXPECT_EQ(imported.Told(), Problems{});
}

TEST(ImportedRecords, ANameOfFourteenIsReadWhole) {
  const Imported imported(CrLf({VehicleLineOf("FOURTEENLETTER")}));
  EXPECT_EQ(imported.List(), (Rows{"BUS", "FOURTEENLETTER"}));
  EXPECT_EQ(imported.Names(), Rows{"FOURTEENLETTER"});
}

TEST(ImportedRecords, ALineFeedAloneEndsNoLine) {
  const Imported imported(VehicleLineOf("VAN") + "\n" + VehicleLineOf("CAB") + "\r");
  EXPECT_EQ(imported.List(), (Rows{"BUS", "VAN"}));
  EXPECT_EQ(imported.Names(), Rows{"VAN"});
  EXPECT_EQ(imported.test.vars.Cars.At(1).RearLights, "1\nCAB");
}

TEST(ImportedRecords, TheLastLineNeedsNoEnd) {
  const Imported imported(VehicleLineOf("VAN") + "\r" + VehicleLineOf("CAB"));
  EXPECT_EQ(imported.Names(), (Rows{"VAN", "CAB"}));
}

TEST(ImportedRecords, ADeletionTakesBothOfAName) {
  Imported imported(CrLf({VehicleLineOf("BUS", "9.0"), VehicleLineOf("CAB")}));
  imported.test.desktop.answers = {true};
  imported.test.main.cmdDeleteCar.ClickByHand();
  EXPECT_EQ(NamesOf(imported.test.vars.Cars), Rows{"CAB"});
}

}  // namespace
}  // namespace wheelwright::testing
