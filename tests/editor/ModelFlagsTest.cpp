// Seven hexadecimal digits and 28 check boxes.
#include "editor/ModelFlags.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

struct DigitRow {
  char digit;
  std::array<int, 4> boxes;  // from the lowest to the highest
};

constexpr std::array<DigitRow, 16> kDigits = {{
    {'0', {0, 0, 0, 0}},
    {'1', {1, 0, 0, 0}},
    {'2', {0, 1, 0, 0}},
    {'3', {1, 1, 0, 0}},
    {'4', {0, 0, 1, 0}},
    {'5', {1, 0, 1, 0}},
    {'6', {0, 1, 1, 0}},
    {'7', {1, 1, 1, 0}},
    {'8', {0, 0, 0, 1}},
    {'9', {1, 0, 0, 1}},
    {'A', {0, 1, 0, 1}},
    {'B', {1, 1, 0, 1}},
    {'C', {0, 0, 1, 1}},
    {'D', {1, 0, 1, 1}},
    {'E', {0, 1, 1, 1}},
    {'F', {1, 1, 1, 1}},
}};

using Ticked = std::vector<int>;

Ticked TickedOn(const FrmMain& main) {
  Ticked flags;
  for (std::size_t i = 0; i < kFlagCount; ++i) {
    if (main.chkFlag[i].State() == 1) flags.push_back(static_cast<int>(i) + 1);
  }
  return flags;
}

void Click(TestSession& s, int flag) { s.main.chkFlag[static_cast<std::size_t>(flag) - 1].ClickByHand(); }

// One vehicle with these flags, on screen.
class Flagged : public TestSession {
 public:
  explicit Flagged(const std::string& flags) {
    Car car = TaggedCar("AXO", "a");
    car.ModelFlags = flags;
    HoldCars(*this, {car});
    main.cmbAutos.Choose(0);
  }

  std::string Flags() { return vars.Cars.At(0).ModelFlags; }
};

struct Shown {
  const char* flags;
  const char* flagsAfterwards;
  Ticked ticked;
};

class ShownFlags : public ::testing::TestWithParam<Shown> {};

TEST_P(ShownFlags, TickTheirBoxesAndArePadded) {
  Flagged s(GetParam().flags);
  EXPECT_EQ(TickedOn(s.main), GetParam().ticked);
  EXPECT_EQ(s.Flags(), GetParam().flagsAfterwards);
  EXPECT_TRUE(s.vars.IsSaved);
}

INSTANTIATE_TEST_SUITE_P(
    ModelFlags, ShownFlags,
    ::testing::Values(Shown{"0000001", "0000001", {1}}, Shown{"1000000", "1000000", {25}},
                      Shown{"0000800", "0000800", {12}},
                      Shown{"1234567", "1234567", {1, 2, 3, 6, 7, 9, 11, 15, 17, 18, 22, 25}},
                      Shown{"3", "0000003", {1, 2}}, Shown{"0000", "0000000", {}}, Shown{"", "0000000", {}},
                      Shown{"0000a00", "0000a00", {}}, Shown{"abcdefF", "abcdefF", {1, 2, 3, 4}},
                      Shown{"G- .\xE4/:", "G- .\xE4/:", {}},
                      Shown{"12345678", "12345678", {1, 2, 3, 6, 7, 9, 11, 15, 17, 18, 22, 25}},
                      Shown{"F0000001F", "F0000001F", {25, 26, 27, 28}}));

TEST(ModelFlags, EachDigitOfEachGroupTicksItsBoxes) {
  for (int group = 1; group <= 7; ++group) {
    for (const DigitRow& row : kDigits) {
      std::string text = "0000000";
      text[static_cast<std::size_t>(7 - group)] = row.digit;
      Ticked expected;
      for (int bit = 0; bit < 4; ++bit) {
        if (row.boxes[static_cast<std::size_t>(bit)] == 1) expected.push_back((group - 1) * 4 + bit + 1);
      }
      FrmMain main;
      EXPECT_EQ(SpreadModelFlags(main, text), text);
      EXPECT_EQ(TickedOn(main), expected) << text;
    }
  }
}

TEST(ModelFlags, TheBoxesOfEachGroupMakeTheirDigit) {
  for (int group = 1; group <= 7; ++group) {
    for (const DigitRow& row : kDigits) {
      FrmMain main;
      for (int bit = 0; bit < 4; ++bit) {
        main.chkFlag[static_cast<std::size_t>((group - 1) * 4 + bit)].SetState(
            row.boxes[static_cast<std::size_t>(bit)]);
      }
      for (int other = 1; other <= 7; ++other) {
        const char expected = other == group ? row.digit : '0';
        EXPECT_EQ(GetFlagDigit(main, other), std::string(1, expected));
      }
    }
  }
}

TEST(ModelFlags, ABoxInAThirdStateMakesNoDigit) {
  Flagged s("1234567");
  s.main.chkFlag[5].SetState(2);
  EXPECT_EQ(GetFlagDigit(s.main, 2), "");
  EXPECT_EQ(s.Flags(), "123457");
}

TEST(ModelFlags, AClickRebuildsTheDigitOfItsGroupAlone) {
  const std::string before = "xyzXYZw";
  for (int flag = 1; flag <= 28; ++flag) {
    Flagged s(before);
    Click(s, flag);
    std::string expected = before;
    expected[static_cast<std::size_t>(6 - (flag - 1) / 4)] = "1248"[(flag - 1) % 4];
    EXPECT_EQ(s.Flags(), expected) << flag;
  }
}

TEST(ModelFlags, AClickMarksTheFileButForThatOfTheThirdBox) {
  for (int flag = 1; flag <= 28; ++flag) {
    Flagged s("0000000");
    Click(s, flag);
    EXPECT_EQ(s.vars.IsSaved, flag == 3) << flag;
    s.vars.IsSaved = true;
    Click(s, flag);
    EXPECT_EQ(s.vars.IsSaved, flag == 3) << flag;
  }
}

TEST(ModelFlags, TheThirdBoxLeavesAMarkedFileMarked) {
  Flagged s("0000000");
  s.vars.IsSaved = false;
  Click(s, 3);
  EXPECT_EQ(s.Flags(), "0000004");
  EXPECT_FALSE(s.vars.IsSaved);
}

TEST(ModelFlags, TheHighestBoxIsWorthEightInTheFirstDigit) {
  Flagged s("0000000");
  Click(s, 28);
  EXPECT_EQ(s.Flags(), "8000000");
}

TEST(ModelFlags, TheLastTickOfAGroupGoesAndLeavesAZero) {
  Flagged s("F0000F2");
  Click(s, 2);
  EXPECT_EQ(s.Flags(), "F0000F0");
}

TEST(ModelFlags, AnUnknownDigitIsReplacedByWhatTheBoxesSay) {
  Flagged s("0000a00");
  Click(s, 1);
  EXPECT_EQ(s.Flags(), "0000a01");
  Click(s, 9);
  EXPECT_EQ(s.Flags(), "0000101");
}

TEST(ModelFlags, AClickCutsALongTextByTheLengthsOfItsGroup) {
  struct Row {
    int flag;
    const char* flags;
  };
  const std::vector<Row> rows = {{1, "1234566"},  {5, "123457B"},  {9, "12344AB"}, {13, "1235yAB"},
                                 {17, "122xyAB"}, {21, "13wxyAB"}, {25, "0vwxyAB"}};
  for (const Row& row : rows) {
    Flagged s("1234567vwxyAB");
    Click(s, row.flag);
    EXPECT_EQ(s.Flags(), row.flags) << row.flag;
  }
}

TEST(ModelFlags, ThePreviousVehiclesTicksGoAndItsFlagsStay) {
  Car full = TaggedCar("AXO", "a");
  full.ModelFlags = "FFFFFFF";
  Car next = TaggedCar("BYL", "b");
  next.ModelFlags = "80g0b01";
  TestSession s;
  HoldCars(s, {full, next});
  s.main.cmbAutos.Choose(0);
  s.main.cmbAutos.Choose(1);
  EXPECT_EQ(TickedOn(s.main), (Ticked{1, 28}));
  EXPECT_EQ(s.vars.Cars.At(0), full);
  EXPECT_EQ(s.vars.Cars.At(1), next);
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.vars.Cars.At(0), full);
  EXPECT_EQ(s.vars.Cars.At(1), next);
}

TEST(ModelFlags, AllBoxesAreClearedBeforeTheFirstIsTicked) {
  Car full = TaggedCar("AXO", "a");
  full.ModelFlags = "FFFFFFF";
  Car next = TaggedCar("BYL", "b");
  next.ModelFlags = "8000001";
  TestSession s;
  HoldCars(s, {full, next});
  s.main.cmbAutos.Choose(0);
  std::vector<std::string> changes;
  for (CheckBox& box : s.main.chkFlag) {
    box.notice = [&](Aspect) { changes.push_back(box.Name()); };
  }
  s.main.cmbAutos.Choose(1);
  std::vector<std::string> expected;
  for (int flag = 1; flag <= 28; ++flag) expected.push_back("chkFlag" + std::to_string(flag));
  expected.insert(expected.end(), {"chkFlag1", "chkFlag28"});
  EXPECT_EQ(changes, expected);
}

rc::Gen<std::string> HexText() {
  return rc::gen::container<std::string>(7, rc::gen::elementOf(std::string("0123456789ABCDEF")));
}

RC_GTEST_PROP(ModelFlags, WhatIsSpreadReadsBack, ()) {
  const std::string text = *HexText();
  FrmMain main;
  SpreadModelFlags(main, text);
  std::string read;
  for (int group = 7; group >= 1; --group) read += GetFlagDigit(main, group);
  RC_ASSERT(read == text);
}

RC_GTEST_PROP(ModelFlags, ADisplayOfAnyTextOnlyPadsIt, ()) {
  const std::string text = *rc::gen::arbitrary<std::string>();
  const std::string before = *HexText();
  Car car = TaggedCar("BYL", "b");
  car.ModelFlags = text;
  Flagged s(before);
  s.vars.Cars.ExtendTo(1);
  s.vars.Cars.At(1) = car;
  s.main.cmbAutos.AddRow("BYL");
  s.main.cmbAutos.Choose(1);
  car.ModelFlags = text.size() < 7 ? std::string(7 - text.size(), '0') + text : text;
  RC_ASSERT(s.vars.Cars.At(1) == car);
  RC_ASSERT(s.Flags() == before);
}

RC_GTEST_PROP(ModelFlags, TwoClicksOnABoxGiveTheSameDigitsBack, ()) {
  const std::string text = *HexText();
  const int flag = *rc::gen::inRange(1, 29);
  Flagged s(text);
  Click(s, flag);
  RC_ASSERT(s.Flags() != text);
  Click(s, flag);
  RC_ASSERT(s.Flags() == text);
}

}  // namespace
}  // namespace wheelwright::testing
