// The captions that a "%" line of the handling file changes.
#include "editor/ShowVehicle.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>
#include <map>

namespace wheelwright::testing {
namespace {

struct Exchanged {
  TextField FrmMain::*field;
  int forBoats;
  int forOthers;
  int infoForOthers;
};

const std::vector<Exchanged> kExchanged = {
    {&FrmMain::txtTractionMulti, 169, 33, 34}, {&FrmMain::txtTractionLoss, 170, 35, 36},
    {&FrmMain::txtTractionBias, 171, 37, 38},  {&FrmMain::txtBrakeBias, 172, 55, 56},
    {&FrmMain::txtBremsstaerke, 173, 53, 54},  {&FrmMain::txtKraftlevel, 174, 65, 66},
    {&FrmMain::txtDLevel, 175, 67, 68},        {&FrmMain::txtULimit, 176, 71, 72},
    {&FrmMain::txtBias, 177, 73, 74},
};

void ExpectBoatCaptions(TestSession& s) {
  for (const Exchanged& row : kExchanged) {
    EXPECT_EQ((s.main.*row.field).label.Caption(), LangText(row.forBoats));
    EXPECT_EQ((s.main.*row.field).hint->Caption(), "");
  }
}

void ExpectOrdinaryCaptions(TestSession& s) {
  for (const Exchanged& row : kExchanged) {
    EXPECT_EQ((s.main.*row.field).label.Caption(), LangText(row.forOthers));
    EXPECT_EQ((s.main.*row.field).hint->Caption(), LangText(row.infoForOthers));
  }
}

std::map<std::string, std::string> CaptionsOn(const FrmMain& main) {
  std::map<std::string, std::string> captions;
  for (const Control* control : main.Controls()) {
    if (const auto* captioned = dynamic_cast<const Captioned*>(control))
      captions[control->Name()] = captioned->Caption();
  }
  return captions;
}

Car CarOfKind(const std::string& name, LineKind kind) {
  Car car = TaggedCar(name, name);
  car.LineKind = kind;
  return car;
}

TEST(LineKindCaptions, OnlyAPercentLineChangesThem) {
  TestSession s;
  HoldCars(s, {CarOfKind("A", kOrdinaryVehicle), CarOfKind("B", kPercentLine),
               CarOfKind("C", kExclamationLine), CarOfKind("D", kDollarLine)});
  s.main.cmbAutos.Choose(1);
  ExpectBoatCaptions(s);
  for (const int row : {0, 2, 3}) {
    s.main.cmbAutos.Choose(1);
    s.main.cmbAutos.Choose(row);
    ExpectOrdinaryCaptions(s);
  }
}

TEST(LineKindCaptions, AllOtherCaptionsStay) {
  TestSession s;
  HoldCars(s, {CarOfKind("A", kOrdinaryVehicle), CarOfKind("B", kPercentLine)});
  s.main.cmbAutos.Choose(0);
  auto expected = CaptionsOn(s.main);
  s.main.cmbAutos.Choose(1);
  for (const Exchanged& row : kExchanged) {
    expected[(s.main.*row.field).label.Name()] = LangText(row.forBoats);
    expected[(s.main.*row.field).hint->Name()] = "";
  }
  EXPECT_EQ(CaptionsOn(s.main), expected);
}

TEST(LineKindCaptions, NothingIsHiddenOrDisabledForABoat) {
  TestSession s;
  HoldCars(s, {CarOfKind("A", kPercentLine)});
  s.main.SSTab1.SetEnabled(true);
  s.main.cmbAutos.Choose(0);
  for (const Exchanged& row : kExchanged) {
    EXPECT_TRUE((s.main.*row.field).label.IsVisibleHere() && (s.main.*row.field).label.IsEnabledHere());
    EXPECT_TRUE((s.main.*row.field).hint->IsVisibleHere() && (s.main.*row.field).hint->IsEnabledHere());
  }
  EXPECT_TRUE(s.main.txtBias.IsVisibleHere() && s.main.txtBias.IsEnabledHere());
}

TEST(LineKindCaptions, TheSnapshotDecidesAndNotTheTable) {
  TestSession s;
  HoldCars(s, {CarOfKind("A", kPercentLine), CarOfKind("B", kOrdinaryVehicle)});
  s.vars.Cars.At(0).LineKind = kOrdinaryVehicle;
  s.vars.Cars.At(1).LineKind = kPercentLine;
  s.main.cmbAutos.Choose(0);
  ExpectBoatCaptions(s);
  s.main.cmbAutos.Choose(1);
  ExpectOrdinaryCaptions(s);
}

TEST(LineKindCaptions, AVehicleBehindTheEndOfTheSnapshotIsAnOrdinaryOne) {
  TestSession s;
  HoldCars(s, {CarOfKind("A", kPercentLine)});
  s.vars.Cars.ExtendTo(1);
  s.vars.Cars.At(1) = TaggedCar("B", "b");
  s.main.cmbAutos.AddRow("B");
  s.main.cmbAutos.Choose(0);
  s.main.cmbAutos.Choose(1);
  ExpectOrdinaryCaptions(s);
  EXPECT_EQ(s.vars.CurrentCar, 1);
  EXPECT_EQ(s.main.txtPreis.Text(), "MonetaryValue b");
}

TEST(LineKindCaptions, AfterADeletionALaterVehicleHasTheKindOfTheOneBeforeIt) {
  TestSession s;
  HoldCars(
      s, {CarOfKind("A", kOrdinaryVehicle), CarOfKind("B", kPercentLine), CarOfKind("C", kOrdinaryVehicle)});
  s.main.cmbAutos.Choose(0);
  s.desktop.answers = {true};
  s.main.cmdDeleteCar.ClickByHand();
  PickByHand(s.main.cmbAutos, "C");
  EXPECT_EQ(s.vars.CurrentCar, 1);
  ExpectBoatCaptions(s);
  PickByHand(s.main.cmbAutos, "B");
  ExpectOrdinaryCaptions(s);
}

}  // namespace
}  // namespace wheelwright::testing
