// The choices of a person in the pick lists and in chkABS.
#include "editor/WriteThrough.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

struct CodeRow {
  PickField FrmMain::*list;
  FieldText Car::*field;
  std::vector<std::string> codes;
};

const std::vector<CodeRow> kCodeRows = {
    {&FrmMain::cmbAntrieb, &Car::DriveType, {"F", "R", "4"}},
    {&FrmMain::cmbMotor, &Car::EngineType, {"P", "D", "E"}},
    {&FrmMain::cmbFrontLichter, &Car::FrontLights, {"0", "1", "2", "3"}},
    {&FrmMain::cmbRearLichter, &Car::RearLights, {"0", "1", "2", "3"}},
};

struct WordRow {
  PickField FrmMain::*list;
  FieldText IdeEntry::*field;
  std::vector<std::string> words;
};

const std::vector<WordRow> kWordRows = {
    {&FrmMain::cmbTyp, &IdeEntry::Typ, {"car", "boat", "bike", "heli", "plane"}},
    {&FrmMain::cmbAnim, &IdeEntry::Anim, {"null", "van", "biked", "bikeh", "bikes", "bikev", "coach"}},
    {&FrmMain::cmbKlasse,
     &IdeEntry::Klasse,
     {"normal", "poorfamily", "richfamily", "leisureboat", "ignore", "big", "executive", "worker", "taxi",
      "workerboat", "motorbike", "moped"}},
};

void HoldTwoCars(TestSession& s) {
  HoldCars(s, {TaggedCar("AXO", "a"), TaggedCar("BYL", "b")});
  s.main.cmbAutos.Choose(1);
}

void HoldTwoIdes(TestSession& s) {
  HoldIdes(s, {TaggedIde("AXO", "a"), TaggedIde("BYL", "b")});
  s.main.cmbAutos.Choose(1);
}

TEST(Choices, ACodeListStoresByPosition) {
  for (const CodeRow& row : kCodeRows) {
    TestSession s;
    HoldTwoCars(s);
    for (std::size_t i = row.codes.size(); i-- > 0;) {
      s.vars.IsSaved = true;
      (s.main.*row.list).ChooseByHand(static_cast<int>(i));
      Car expected = TaggedCar("BYL", "b");
      expected.*row.field = row.codes[i];
      EXPECT_EQ(s.vars.Cars.At(1), expected);
      EXPECT_FALSE(s.vars.IsSaved);
    }
    EXPECT_EQ(s.vars.Cars.At(0), TaggedCar("AXO", "a"));
  }
}

TEST(Choices, TheWordsOfACodeListDontMatter) {
  TestSession s;
  HoldTwoCars(s);
  s.main.cmbAntrieb.ReplaceRow(2, "F");
  s.main.cmbAntrieb.ChooseByHand(2);
  EXPECT_EQ(s.vars.Cars.At(1).DriveType, "4");
}

TEST(Choices, AnyOtherPositionStoresNothingButMarks) {
  for (const CodeRow& row : kCodeRows) {
    TestSession s;
    HoldTwoCars(s);
    (s.main.*row.list).AddRow("further");
    (s.main.*row.list).ChooseByHand((s.main.*row.list).Count() - 1);
    EXPECT_EQ(s.vars.Cars.At(1), TaggedCar("BYL", "b"));
    EXPECT_FALSE(s.vars.IsSaved);
  }
}

TEST(Choices, WithoutAChoiceACodeListStoresNothingButMarks) {
  for (const FieldRow<Car>& field : kHandlingFields) {
    TestSession s;
    PickList* const list = InputOf<PickList>(s.main, field);
    if (list == nullptr) continue;
    HoldTwoCars(s);
    list->Clear();
    StoreCode(s.session, field);
    EXPECT_EQ(s.vars.Cars.At(1), TaggedCar("BYL", "b"));
    EXPECT_FALSE(s.vars.IsSaved);
  }
}

TEST(Choices, ACodeListStoresFirstAndThenMarks) {
  for (const CodeRow& row : kCodeRows) {
    TestSession s;
    HoldTwoCars(s);
    s.vars.CurrentCar = 2;
    EXPECT_THROW((s.main.*row.list).ChooseByHand(1), Failure);
    EXPECT_TRUE(s.vars.IsSaved);
  }
}

TEST(Choices, AWordListStoresTheWord) {
  for (const WordRow& row : kWordRows) {
    TestSession s;
    HoldTwoIdes(s);
    ASSERT_EQ((s.main.*row.list).Rows(), row.words);
    for (std::size_t i = row.words.size(); i-- > 0;) {
      s.vars.IsSaved = true;
      (s.main.*row.list).ChooseByHand(static_cast<int>(i));
      IdeEntry expected = TaggedIde("BYL", "b");
      expected.*row.field = row.words[i];
      EXPECT_EQ(s.vars.Ides.At(1), expected);
      EXPECT_FALSE(s.vars.IsSaved);
    }
    EXPECT_EQ(s.vars.Ides.At(0), TaggedIde("AXO", "a"));
  }
}

TEST(Choices, AWordListMarksFirstAndThenStores) {
  for (const WordRow& row : kWordRows) {
    TestSession s;
    HoldTwoIdes(s);
    s.vars.CurrentIde = 2;
    EXPECT_THROW((s.main.*row.list).ChooseByHand(1), Failure);
    EXPECT_FALSE(s.vars.IsSaved);
  }
}

TEST(Choices, TheChoiceOfTheShownEntryMarksTheFileToo) {
  TestSession s;
  HoldTwoCars(s);
  s.main.cmbMotor.ChooseByHand(0);
  EXPECT_EQ(s.vars.Cars.At(1), TaggedCar("BYL", "b"));
  EXPECT_FALSE(s.vars.IsSaved);
}

TEST(Choices, AChoiceAndTheWayBackLeaveTheFileMarked) {
  TestSession s;
  HoldTwoIdes(s);
  s.main.cmbKlasse.ChooseByHand(5);
  s.main.cmbKlasse.ChooseByHand(0);
  EXPECT_EQ(s.vars.Ides.At(1), TaggedIde("BYL", "b"));
  EXPECT_FALSE(s.vars.IsSaved);
}

TEST(Choices, AClickOnTheABSBoxStoresItsState) {
  TestSession s;
  HoldTwoCars(s);
  s.main.chkABS.ClickByHand();
  EXPECT_EQ(s.vars.Cars.At(1).ABS, "1");
  EXPECT_FALSE(s.vars.IsSaved);
  s.vars.IsSaved = true;
  s.main.chkABS.ClickByHand();
  EXPECT_EQ(s.vars.Cars.At(1), TaggedCar("BYL", "b"));
  EXPECT_FALSE(s.vars.IsSaved);
}

TEST(Choices, AClickOnTheThirdStateOfABSGivesZero) {
  TestSession s;
  Car car = TaggedCar("AXO", "a");
  car.ABS = "2";
  HoldCars(s, {car});
  s.main.cmbAutos.Choose(0);
  s.main.chkABS.ClickByHand();
  EXPECT_EQ(s.main.chkABS.State(), 0);
  EXPECT_EQ(s.vars.Cars.At(0).ABS, "0");
}

TEST(Choices, AStrangeABSStaysUntilTheClick) {
  TestSession s;
  Car car = TaggedCar("AXO", "a");
  car.ABS = "maybe";
  HoldCars(s, {car});
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.vars.Cars.At(0).ABS, "maybe");
  s.main.chkABS.ClickByHand();
  EXPECT_EQ(s.vars.Cars.At(0).ABS, "1");
}

TEST(Choices, TheABSBoxStoresFirstAndThenMarks) {
  TestSession s;
  HoldTwoCars(s);
  s.vars.CurrentCar = 2;
  EXPECT_THROW(s.main.chkABS.ClickByHand(), Failure);
  EXPECT_TRUE(s.vars.IsSaved);
}

}  // namespace
}  // namespace wheelwright::testing
