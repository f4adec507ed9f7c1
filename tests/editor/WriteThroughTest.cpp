// Every edit goes through its control's event into the current record.
#include "editor/WriteThrough.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

// A session with three vehicles of each table, the second one on screen in both.
class Edited : public TestSession {
 public:
  Edited() {
    HoldIdes(*this, {TaggedIde("AXO", "a"), TaggedIde("BYL", "b"), TaggedIde("CID", "c")});
    main.cmbAutos.Choose(1);
    HoldCars(*this, {TaggedCar("AXO", "a"), TaggedCar("BYL", "b"), TaggedCar("CID", "c")});
    main.cmbAutos.Choose(1);
  }

  void ExpectCurrentCar(const Car& expected) {
    EXPECT_EQ(vars.Cars.At(0), TaggedCar("AXO", "a"));
    EXPECT_EQ(vars.Cars.At(1), expected);
    EXPECT_EQ(vars.Cars.At(2), TaggedCar("CID", "c"));
    EXPECT_EQ(vars.Kopie_Cars.At(1), TaggedCar("BYL", "b"));
  }

  void ExpectCurrentIde(const IdeEntry& expected) {
    EXPECT_EQ(vars.Ides.At(0), TaggedIde("AXO", "a"));
    EXPECT_EQ(vars.Ides.At(1), expected);
    EXPECT_EQ(vars.Ides.At(2), TaggedIde("CID", "c"));
    EXPECT_EQ(vars.Kopie_Ides.At(1), TaggedIde("BYL", "b"));
  }
};

struct HandlingBox {
  TextField FrmMain::*box;
  FieldText Car::*field;
};

const std::vector<HandlingBox> kHandlingBoxes = {
    {&FrmMain::txtAutoname, &Car::CarName},
    {&FrmMain::txtGewicht, &Car::Mass},
    {&FrmMain::txtBreite, &Car::DimensionX},
    {&FrmMain::txtHoehe, &Car::DimensionY},
    {&FrmMain::txtLaenge, &Car::DimensionZ},
    {&FrmMain::txtMassenmittelpX, &Car::CenterOfMassX},
    {&FrmMain::txtMassenmittelpY, &Car::CenterOfMassY},
    {&FrmMain::txtMassenmittelpZ, &Car::CenterOfMassZ},
    {&FrmMain::txtSubMerged, &Car::PercentSubmerged},
    {&FrmMain::txtTractionMulti, &Car::TractionMultiplier},
    {&FrmMain::txtTractionLoss, &Car::TractionLoss},
    {&FrmMain::txtTractionBias, &Car::TractionBias},
    {&FrmMain::txtGaenge, &Car::GearCount},
    {&FrmMain::txtGeschwindigkeit, &Car::MaxVelocity},
    {&FrmMain::txtBeschleunigung, &Car::EngineAcceleration},
    {&FrmMain::txtBremsstaerke, &Car::BrakeDeceleration},
    {&FrmMain::txtBrakeBias, &Car::BrakeBias},
    {&FrmMain::txtRadeinschlag, &Car::SteeringLock},
    {&FrmMain::txtKraftlevel, &Car::SuspensionForceLevel},
    {&FrmMain::txtDLevel, &Car::SuspensionDampingLevel},
    {&FrmMain::txtPedSeat, &Car::SeatOffset},
    {&FrmMain::txtKoll, &Car::CollisionDamageMultiplier},
    {&FrmMain::txtPreis, &Car::MonetaryValue},
    {&FrmMain::txtOLimit, &Car::suspension_upper_limit},
    {&FrmMain::txtULimit, &Car::suspension_lower_limit},
    {&FrmMain::txtBias, &Car::SuspensionBias},
    {&FrmMain::txtDive, &Car::SuspensionAntiDive},
};

struct DefinitionBox {
  TextField FrmMain::*box;
  FieldText IdeEntry::*field;
};

const std::vector<DefinitionBox> kDefinitionBoxes = {
    {&FrmMain::txtID, &IdeEntry::ID},
    {&FrmMain::txtModelName, &IdeEntry::ModelName},
    {&FrmMain::txtTXDName, &IdeEntry::TXDName},
    {&FrmMain::txtHandlingID, &IdeEntry::HandlingID},
    {&FrmMain::txtGameName, &IdeEntry::GameName},
    {&FrmMain::txtFrequenz, &IdeEntry::Frequenz},
    {&FrmMain::txtLevel, &IdeEntry::Level},
    {&FrmMain::txtCompRules, &IdeEntry::CompRules},
    {&FrmMain::txtExtra1, &IdeEntry::Extra1},
    {&FrmMain::txtExtra2, &IdeEntry::Extra2},
};

// Any text goes in as it stands: a comma, a word, an empty one, blanks, a letter beyond ASCII.
const std::vector<std::string> kTexts = {"12,5", "abc", "", " 7 ", "\xC4"};

TEST(WriteThrough, EachHandlingBoxStoresItsWholeTextInItsField) {
  for (const HandlingBox& row : kHandlingBoxes) {
    for (const std::string& text : kTexts) {
      Edited s;
      // Filled already, so that the empty text is a change too.
      ASSERT_FALSE((s.main.*row.box).Text().empty()) << (s.main.*row.box).Name();
      (s.main.*row.box).EditByHand(text);
      Car expected = TaggedCar("BYL", "b");
      expected.*row.field = text;
      s.ExpectCurrentCar(expected);
      s.ExpectCurrentIde(TaggedIde("BYL", "b"));
      EXPECT_FALSE(s.vars.IsSaved) << (s.main.*row.box).Name();
      EXPECT_TRUE(s.desktop.shown.empty());
    }
  }
}

TEST(WriteThrough, EachDefinitionBoxStoresItsWholeTextInItsField) {
  for (const DefinitionBox& row : kDefinitionBoxes) {
    for (const std::string& text : kTexts) {
      Edited s;
      (s.main.*row.box).SetText("filled");
      s.vars.IsSaved = true;
      (s.main.*row.box).EditByHand(text);
      IdeEntry expected = TaggedIde("BYL", "b");
      expected.*row.field = text;
      s.ExpectCurrentIde(expected);
      s.ExpectCurrentCar(TaggedCar("BYL", "b"));
      EXPECT_FALSE(s.vars.IsSaved) << (s.main.*row.box).Name();
      EXPECT_TRUE(s.desktop.shown.empty());
    }
  }
}

TEST(WriteThrough, AHandlingBoxStoresFirstAndThenMarks) {
  for (const HandlingBox& row : kHandlingBoxes) {
    Edited s;
    s.vars.CurrentCar = 3;
    EXPECT_THROW((s.main.*row.box).EditByHand("x"), Failure);
    EXPECT_TRUE(s.vars.IsSaved) << (s.main.*row.box).Name();
    EXPECT_EQ(s.main.cmbAutos.Text(), "BYL");
  }
}

TEST(WriteThrough, ADefinitionBoxMarksFirstAndThenStores) {
  for (const DefinitionBox& row : kDefinitionBoxes) {
    Edited s;
    s.vars.CurrentIde = 3;
    EXPECT_THROW((s.main.*row.box).EditByHand("x"), Failure);
    EXPECT_FALSE(s.vars.IsSaved) << (s.main.*row.box).Name();
    EXPECT_EQ(s.main.cmbAutos.Text(), "BYL");
  }
}

TEST(WriteThrough, OnlyTheTwoKeysRenameTheChosenEntry) {
  Edited s;
  for (const HandlingBox& row : kHandlingBoxes) {
    if (row.box != &FrmMain::txtAutoname) (s.main.*row.box).EditByHand("x");
  }
  for (const DefinitionBox& row : kDefinitionBoxes) {
    if (row.box != &FrmMain::txtHandlingID) (s.main.*row.box).EditByHand("x");
  }
  EXPECT_EQ(s.main.cmbAutos.Rows(), (std::vector<std::string>{"AXO", "BYL", "CID"}));
}

TEST(WriteThrough, ANewNameTakesThePlaceOfTheEntryWithoutSorting) {
  for (TextField FrmMain::*box : {&FrmMain::txtAutoname, &FrmMain::txtHandlingID}) {
    Edited s;
    (s.main.*box).EditByHand(" zed");
    EXPECT_EQ(s.main.cmbAutos.Rows(), (std::vector<std::string>{"AXO", " zed", "CID"}));
    EXPECT_EQ(s.main.cmbAutos.Row(), 1);
  }
}

TEST(WriteThrough, ARenamedVehicleIsStillFound) {
  Edited s;
  s.main.txtAutoname.EditByHand("ZED");
  PickByHand(s.main.cmbAutos, "AXO");
  PickByHand(s.main.cmbAutos, "ZED");
  EXPECT_EQ(s.vars.CurrentCar, 1);
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass b");
  EXPECT_FALSE(s.vars.IsSaved);
}

TEST(WriteThrough, RenamingToAnotherVehiclesNameGivesTwoEntriesThatShowTheFirst) {
  Edited s;
  s.main.txtAutoname.EditByHand("AXO");
  EXPECT_EQ(s.main.cmbAutos.Rows(), (std::vector<std::string>{"AXO", "AXO", "CID"}));
  EXPECT_EQ(s.main.txtGewicht.Text(), "Mass b");
  for (const int row : {0, 1}) {
    s.main.cmbAutos.ChooseByHand(row);
    EXPECT_EQ(s.main.txtGewicht.Text(), "Mass a");
  }
}

TEST(WriteThrough, ARenameReachesNoOtherTable) {
  Edited s;
  s.main.txtAutoname.EditByHand("ZED");
  s.ExpectCurrentIde(TaggedIde("BYL", "b"));
  Edited t;
  t.main.txtHandlingID.EditByHand("ZED");
  t.ExpectCurrentCar(TaggedCar("BYL", "b"));
}

TEST(WriteThrough, WhileNothingIsChosenANewNameChangesNoEntry) {
  for (TextField FrmMain::*box : {&FrmMain::txtAutoname, &FrmMain::txtHandlingID}) {
    Edited s;
    s.main.cmbAutos.RemoveRow(1);
    (s.main.*box).EditByHand("ZED");
    EXPECT_EQ(s.main.cmbAutos.Rows(), (std::vector<std::string>{"AXO", "CID"}));
    EXPECT_FALSE(s.vars.IsSaved);
  }
}

TEST(WriteThrough, TheNameBoxTakesFourteenCharactersByHand) {
  Edited s;
  s.main.txtAutoname.EditByHand("fourteen chars");
  EXPECT_EQ(s.main.txtAutoname.Text(), "fourteen chars");
  s.main.txtAutoname.EditByHand("fourteen chars!");
  EXPECT_EQ(s.main.txtAutoname.Text(), "fourteen chars");
  EXPECT_EQ(s.vars.Cars.At(1).CarName, "fourteen chars");
}

TEST(WriteThrough, ALongNameFromAFileIsShownAndStoredWhole) {
  Edited s;
  HoldCars(s, {TaggedCar("TWENTYCHARACTERSLONG", "a")});
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.main.txtAutoname.Text(), "TWENTYCHARACTERSLONG");
  s.main.txtAutoname.EditByHand("TWENTYCHARACTERSLONX");
  EXPECT_EQ(s.vars.Cars.At(0).CarName, "TWENTYCHARACTERSLONX");
  EXPECT_EQ(s.main.cmbAutos.Text(), "TWENTYCHARACTERSLONX");
  s.main.txtAutoname.EditByHand("TWENTYCHARACTERSLONGX");
  EXPECT_EQ(s.vars.Cars.At(0).CarName, "TWENTYCHARACTERSLONX");
  s.main.txtAutoname.EditByHand("TWENTYCHARACTERSLON");
  EXPECT_EQ(s.vars.Cars.At(0).CarName, "TWENTYCHARACTERSLON");
}

TEST(WriteThrough, NoOtherBoxHasALimit) {
  Edited s;
  for (const Control* control : s.main.Controls()) {
    const auto* box = dynamic_cast<const TextBox*>(control);
    if (box == nullptr || box == &s.main.txtAutoname) continue;
    EXPECT_EQ(box->LongestByHand(), std::string::npos) << box->Name();
  }
}

TEST(WriteThrough, TheOpenKindOfFileDoesNotMatter) {
  Edited s;
  s.vars.CurrentFileType = kColorFile;
  s.main.txtGewicht.EditByHand("x");
  s.main.txtID.EditByHand("y");
  EXPECT_EQ(s.vars.Cars.At(1).Mass, "x");
  EXPECT_EQ(s.vars.Ides.At(1).ID, "y");
}

TEST(WriteThrough, AuthorAndDateOnlyMarkTheFile) {
  for (TextBox FrmMain::*box : {&FrmMain::txtAuthor, &FrmMain::txtDate}) {
    Edited s;
    (s.main.*box).EditByHand("x");
    EXPECT_FALSE(s.vars.IsSaved);
    EXPECT_EQ((s.main.*box).Text(), "x");
    s.ExpectCurrentCar(TaggedCar("BYL", "b"));
    s.ExpectCurrentIde(TaggedIde("BYL", "b"));
  }
}

}  // namespace
}  // namespace wheelwright::testing
