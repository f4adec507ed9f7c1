#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

constexpr const char* kSubscript = "error: Error: 9 - Subscript out of range";
const Texts kAsked = {"question: E153"};

// A session with this palette, "bus" with the pair of colour 0 on screen, and nothing shown yet.
class Opened : public TestSession {
 public:
  explicit Opened(const std::string& colors, const std::string& vehicles = "bus,0,0\r\n") {
    OpenColors("col\r\n" + colors + "end\r\ncar\r\n" + vehicles + "end\r\n");
    desktop.shown.clear();
  }

  void Choose(int row) {
    main.lstColors.ChooseByHand(row);
    vars.IsSaved = true;
  }
  void Delete(int row) {
    main.lstColors.ChooseByHand(row);
    desktop.answers.push_back(true);
    main.cmdDeleteColor.ClickByHand();
  }
  Texts Shown() const {
    return {main.txtColorName.Text(), std::to_string(main.HScroll1.Value()),
            std::to_string(main.HScroll2.Value()), std::to_string(main.HScroll3.Value())};
  }
  Texts ValueLabels() const {
    return {main.lblRotWert.Caption(), main.lblGrünWert.Caption(), main.lblBlauWert.Caption()};
  }
};

constexpr const char* kThree = "1,2,3\t# 0 oak\r\n4,5,6\t# 1 elm\r\n7,8,9\t# 2 ash\r\n";

// A session whose palette has lost its only colour.
class Emptied : public Opened {
 public:
  Emptied() : Opened("1,2,3\t# 0 oak\r\n") {
    Delete(0);
    desktop.shown.clear();
    vars.IsSaved = true;
  }
};

TEST(Palette, AClickOnARowShowsItsNameItsComponentsAndItsSwatch) {
  Opened test(kThree);
  test.main.lstColors.ChooseByHand(1);
  EXPECT_EQ(test.Shown(), (Texts{"elm", "4", "5", "6"}));
  EXPECT_EQ(test.ValueLabels(), (Texts{"4", "5", "6"}));
  EXPECT_EQ(test.main.picFarbe.Color(), (std::array{4, 5, 6}));
}

TEST(Palette, AClickOnARowThatDiffersMarksTheFileButChangesNoColor) {
  Opened test(kThree);
  test.Choose(0);
  test.main.lstColors.ChooseByHand(1);
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(TextsOf(test.vars.Colors), TextsOf(test.vars.Kopie_Colors));
  EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"oak - 1,2,3", "elm - 4,5,6", "ash - 7,8,9"}));
}

TEST(Palette, OneDifferenceIsEnoughToMarkTheFile) {
  for (const char* other :
       {"1,2,3\t# 1 elm\r\n", "9,2,3\t# 1 oak\r\n", "1,9,3\t# 1 oak\r\n", "1,2,9\t# 1 oak\r\n"}) {
    Opened test(std::string("1,2,3\t# 0 oak\r\n") + other);
    test.Choose(0);
    test.main.lstColors.ChooseByHand(1);
    EXPECT_FALSE(test.vars.IsSaved) << other;
  }
}

TEST(Palette, AClickOnARowEqualInNameAndComponentsLeavesTheFileUnmarked) {
  Opened test("1,2,3\t# 0 oak\r\n1,2,3\t# 1 oak\r\n");
  test.Choose(0);
  test.main.lstColors.ChooseByHand(1);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, AClickShowsTheNameFirstAndThenRedGreenAndBlue) {
  Opened test(kThree);
  Texts order;
  for (Control* control : std::initializer_list<Control*>{&test.main.HScroll3, &test.main.HScroll2,
                                                          &test.main.HScroll1, &test.main.txtColorName}) {
    control->notice = [&order, control](Aspect) { order.push_back(control->Name()); };
  }
  test.main.lstColors.ChooseByHand(1);
  EXPECT_EQ(order, (Texts{"txtColorName", "HScroll1", "HScroll2", "HScroll3"}));
}

TEST(Palette, AClickWithoutRowsOrWithoutAChoiceDoesNothing) {
  Opened unchosen(kThree);
  unchosen.main.lstColors.clicked();
  EXPECT_EQ(unchosen.Shown(), (Texts{"", "0", "0", "0"}));
  EXPECT_TRUE(unchosen.vars.IsSaved);
  TestSession empty;
  empty.main.lstColors.clicked();
  EXPECT_TRUE(empty.vars.IsSaved);
}

TEST(Palette, EachBarWritesItsComponentItsLabelTheSwatchAndTheRow) {
  Opened test(kThree);
  test.Choose(1);
  test.main.HScroll1.MoveByHand(100);
  EXPECT_EQ(TextOf(test.vars.Colors.At(1)), "1: 100,5,6 elm");
  EXPECT_EQ(test.main.picFarbe.Color(), (std::array{100, 5, 6}));
  test.main.HScroll2.MoveByHand(0);
  EXPECT_EQ(TextOf(test.vars.Colors.At(1)), "1: 100,0,6 elm");
  test.main.HScroll3.MoveByHand(255);
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,2,3 oak", "1: 100,0,255 elm", "2: 7,8,9 ash"}));
  EXPECT_EQ(test.main.picFarbe.Color(), (std::array{100, 0, 255}));
  EXPECT_EQ(test.ValueLabels(), (Texts{"100", "0", "255"}));
  EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"oak - 1,2,3", "elm - 100,0,255", "ash - 7,8,9"}));
  EXPECT_EQ(test.main.lstColors.Row(), 1);
}

TEST(Palette, EachBarMarksTheFile) {
  for (ScrollBar FrmMain::*bar : {&FrmMain::HScroll1, &FrmMain::HScroll2, &FrmMain::HScroll3}) {
    Opened test(kThree);
    test.Choose(1);
    (test.main.*bar).MoveByHand(77);
    EXPECT_FALSE(test.vars.IsSaved);
    EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), (Texts{"0: 1,2,3 oak", "1: 4,5,6 elm", "2: 7,8,9 ash"}));
  }
}

TEST(Palette, AnyNameIsTaken) {
  Opened test(kThree);
  test.Choose(1);
  for (const std::string& name :
       {std::string("dark - elm"), std::string(), std::string(500, 'x'), std::string("# 1 \xFC,")}) {
    test.vars.IsSaved = true;
    test.main.txtColorName.EditByHand(name);
    EXPECT_EQ(test.vars.Colors.At(1).ColorName, name);
    EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"oak - 1,2,3", name + " - 4,5,6", "ash - 7,8,9"}));
    EXPECT_FALSE(test.vars.IsSaved);
  }
  EXPECT_EQ(test.main.lstColors.Row(), 1);
}

TEST(Palette, ComponentsOutsideTheBarsKeepTheirValuesUntilABarIsMoved) {
  Opened test("300,-1,5\t# 0 odd\r\n1,2,3\t# 1 oak\r\n");
  test.main.lstColors.ChooseByHand(1);
  test.main.lstColors.ChooseByHand(0);
  EXPECT_EQ(test.Shown(), (Texts{"odd", "255", "0", "5"}));
  EXPECT_EQ(test.main.picFarbe.Color(), (std::array{255, 0, 5}));
  EXPECT_EQ(TextOf(test.vars.Colors.At(0)), "0: 300,-1,5 odd");
  EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"odd - 300,-1,5", "oak - 1,2,3"}));
  test.main.txtColorName.EditByHand("even");
  EXPECT_EQ(TextOf(test.vars.Colors.At(0)), "0: 300,-1,5 even");
  test.main.HScroll1.MoveByHand(254);
  EXPECT_EQ(TextOf(test.vars.Colors.At(0)), "0: 254,-1,5 even");
  EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"even - 254,-1,5", "oak - 1,2,3"}));
}

TEST(Palette, WithRowsButNoChoiceABarShowsItsValueAndThenFails) {
  Opened test(kThree);
  EXPECT_EQ(NumberThrownBy([&] { test.main.HScroll2.MoveByHand(40); }), 9);
  EXPECT_EQ(test.main.picFarbe.Color(), (std::array{0, 40, 0}));
  EXPECT_EQ(test.main.lblGrünWert.Caption(), "40");
  EXPECT_EQ(TextsOf(test.vars.Colors), TextsOf(test.vars.Kopie_Colors));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, WithRowsButNoChoiceAnEditOfTheNameFails) {
  Opened test(kThree);
  EXPECT_EQ(NumberThrownBy([&] { test.main.txtColorName.EditByHand("x"); }), 9);
  EXPECT_EQ(TextsOf(test.vars.Colors), TextsOf(test.vars.Kopie_Colors));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, WithRowsButNoChoiceDeletingAsksAndThenShowsItsFailure) {
  Opened test(kThree, "bus,0,1\r\n");
  test.desktop.answers.push_back(true);
  test.main.cmdDeleteColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, (Texts{"question: E153", kSubscript}));
  EXPECT_EQ(TextsOf(test.vars.Colors), TextsOf(test.vars.Kopie_Colors));
  EXPECT_EQ(TextsOf(test.vars.CarColors), TextsOf(test.vars.Kopie_CarColors));
  EXPECT_EQ(test.main.lstColors.Count(), 3);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, WithoutRowsABarShowsItsValueAndStoresNothing) {
  Emptied test;
  test.main.HScroll3.MoveByHand(77);
  EXPECT_EQ(test.main.picFarbe.Color(), (std::array{1, 2, 77}));
  EXPECT_EQ(test.main.lblBlauWert.Caption(), "77");
  test.main.txtColorName.EditByHand("x");
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 0,0,0 "});
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, WithoutRowsDeletingDoesNothingWithoutAWord) {
  Emptied test;
  test.main.cmdDeleteColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{});
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, ANewColorStandsLastIsChosenAndIsThenReported) {
  Opened test(kThree);
  test.main.lstColors.clicked = [&, show = test.main.lstColors.clicked] {
    show();
    test.desktop.shown.emplace_back("chosen");
  };
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.Colors),
            (Texts{"0: 1,2,3 oak", "1: 4,5,6 elm", "2: 7,8,9 ash", "3: 0,128,255 Color3"}));
  EXPECT_EQ(test.main.lstColors.Rows(),
            (Texts{"oak - 1,2,3", "elm - 4,5,6", "ash - 7,8,9", "Color3 - 0,128,255"}));
  EXPECT_EQ(test.main.lstColors.Row(), 3);
  EXPECT_EQ(test.Shown(), (Texts{"Color3", "0", "128", "255"}));
  EXPECT_EQ(test.desktop.shown, (Texts{"chosen", "information: E154"}));
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(Palette, ANewColorTouchesNothingElse) {
  Opened test(kThree);
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(test.main.cmbColor1.Count(), 3);
  EXPECT_EQ(test.main.cmbColor2.Count(), 3);
  EXPECT_EQ(test.vars.Kopie_Colors.Count(), 3);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0"});
}

TEST(Palette, ASecondNewColorMarksTheFileAlthoughNothingOnScreenButTheNameChanges) {
  Opened test(kThree);
  test.main.cmdNewColor.ClickByHand();
  test.main.txtColorName.EditByHand("Color4");
  test.vars.IsSaved = true;
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(TextOf(test.vars.Colors.At(4)), "4: 0,128,255 Color4");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(Palette, WithoutAColorFileAddingAndDeletingShowTheirFailure) {
  TestSession test;
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{kSubscript});
  EXPECT_FALSE(test.vars.Colors.IsAllocated());
  test.main.lstColors.AddRow("stray");
  test.desktop.answers.push_back(true);
  test.main.cmdDeleteColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, (Texts{kSubscript, "question: E153", kSubscript}));
}

TEST(Palette, NoLeavesTheColorWhereItIs) {
  Opened test(kThree);
  test.Choose(1);
  test.desktop.answers.push_back(false);
  test.main.cmdDeleteColor.ClickByHand();
  EXPECT_EQ(test.desktop.shown, kAsked);
  EXPECT_EQ(TextsOf(test.vars.Colors), TextsOf(test.vars.Kopie_Colors));
  EXPECT_EQ(test.main.lstColors.Row(), 1);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(Palette, ADeletionLeavesAGapInTheNumbersAndSetsReferencesToNought) {
  Opened test("1,1,1\t# 0 A\r\n2,2,2\t# 1 B\r\n3,3,3\t# 2 C\r\n4,4,4\t# 3 D\r\n",
              "bus,1,2,3,1\r\ncab,1,1\r\nvan,2,3\r\n");
  test.Delete(1);
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"bus 0,2 3,0", "cab 0,0", "van 2,3"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,1,1 A", "2: 3,3,3 C", "3: 4,4,4 D"}));
  EXPECT_EQ(test.main.lstColors.Rows(), (Texts{"A - 1,1,1", "C - 3,3,3", "D - 4,4,4"}));
  test.main.cmbAutos.ChooseByHand(2);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"C - D"});
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.Disk(TestSession::kColorPath),
            kBanner + CrLf({"col", "1,1,1\t\t\t\t# 0 A", "3,3,3\t\t\t\t# 2 C", "4,4,4\t\t\t\t# 3 D", "end",
                            "car", "bus, 0, 2, 3, 0", "cab, 0, 0", "van, 2, 3", "end", "", ""}));
  test.OpenColors(test.Disk(TestSession::kColorPath));
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 1,1,1 A", "1: 3,3,3 C", "2: 4,4,4 D"}));
}

TEST(Palette, ADeletionChoosesTheFirstRowAndReportsNothing) {
  Opened test(kThree);
  test.Delete(2);
  EXPECT_EQ(test.main.lstColors.Row(), 0);
  EXPECT_EQ(test.Shown(), (Texts{"oak", "1", "2", "3"}));
  EXPECT_EQ(test.desktop.shown, kAsked);
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.vars.Kopie_Colors.Count(), 3);
}

TEST(Palette, ADeletionLeavesThePickListsAndThePairsOnScreen) {
  Opened test(kThree, "bus,1,2\r\n");
  test.Delete(1);
  EXPECT_EQ(test.main.cmbColor1.Count(), 3);
  EXPECT_EQ(test.main.cmbColor2.Count(), 3);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"elm - ash"});
}

TEST(Palette, ADeletionMarksTheFileAlsoWhenTheNextColorLooksTheSame) {
  Opened test("1,2,3\t# 0 oak\r\n1,2,3\t# 1 oak\r\n");
  test.Choose(1);
  test.desktop.answers.push_back(true);
  test.main.cmdDeleteColor.ClickByHand();
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(Palette, ReferencesAreComparedWithTheIndexAndNotWithTheRow) {
  Opened test(kThree, "bus,1,2\r\ncab,2,1\r\n");
  test.Delete(0);
  test.Delete(1);
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"1: 4,5,6 elm"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"bus 1,0", "cab 0,1"}));
}

TEST(Palette, DeletingTheFirstColorLeavesReferencesToItAsTheyAre) {
  Opened test(kThree, "bus,0,2\r\n");
  test.Delete(0);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,2"});
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"1: 4,5,6 elm", "2: 7,8,9 ash"}));
}

TEST(Palette, DeletingAnUnusedColorChangesNoVehicle) {
  Opened test(kThree, "bus,0,2\r\n");
  test.Delete(1);
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,2"});
}

TEST(Palette, AColorAddedAfterADeletionMaySharesANumber) {
  Opened test(std::string(kThree) + "1,1,1\t# 3 fir\r\n2,2,2\t# 4 yew\r\n");
  test.Delete(1);
  EXPECT_EQ(TextsOf(test.vars.Colors),
            (Texts{"0: 1,2,3 oak", "2: 7,8,9 ash", "3: 1,1,1 fir", "4: 2,2,2 yew"}));
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(TextOf(test.vars.Colors.At(4)), "4: 0,128,255 Color4");
  EXPECT_EQ(test.vars.Colors.Count(), 5);
}

TEST(Palette, AllColorsOfTheSameNumberLoseTheirReferencesButOnlyTheChosenOneGoes) {
  Opened test(kThree, "bus,2,1\r\n");
  test.vars.Colors.At(0).Index = 2;
  test.Delete(0);
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"1: 4,5,6 elm", "2: 7,8,9 ash"}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,1"});
}

TEST(Palette, DeletingTheLastColorLeavesAnEmptyListAndOneBlankEntry) {
  Opened test("1,2,3\t# 0 oak\r\n");
  test.Delete(0);
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{});
  EXPECT_EQ(test.main.lstColors.Row(), RowList::kNoRow);
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 0,0,0 "});
  EXPECT_EQ(test.Shown(), (Texts{"oak", "1", "2", "3"}));
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(Palette, AColorAddedToAnEmptiedPaletteStandsAtPositionOneButInRowNought) {
  Emptied test;
  test.main.cmdNewColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 0,0,0 ", "0: 0,128,255 Color1"}));
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{" - 0,0,0"});
  EXPECT_EQ(test.Shown(), (Texts{"", "0", "0", "0"}));
  test.main.HScroll1.MoveByHand(9);
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 9,0,0 ", "0: 0,128,255 Color1"}));
}

TEST(Palette, AFailureInTheReferencesLeavesTheColorPresent) {
  Opened test(kThree);
  test.vars.CarColors = Table<CarColorEntry>();
  test.Delete(1);
  EXPECT_EQ(test.desktop.shown, (Texts{"question: E153", kSubscript}));
  EXPECT_EQ(TextsOf(test.vars.Colors), TextsOf(test.vars.Kopie_Colors));
  EXPECT_EQ(test.main.lstColors.Count(), 3);
}

}  // namespace
}  // namespace wheelwright::testing
