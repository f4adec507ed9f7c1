// The colour file as the commands move it between disk, tables and lists.
#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

const Texts kLoaded = {"open", "hourglass", "normal"};
constexpr const char* kNothingToChoose = "error: Error: 380 - Invalid property value";

// A session that has just opened a colour file.
class Opened : public TestSession {
 public:
  explicit Opened(const std::string& text) { OpenColors(text); }

  // The file on the disk behind a click on cmdSave.
  std::string Saved() {
    main.cmdSave.ClickByHand();
    EXPECT_EQ(LastShown(), "information: E116");
    return Disk(kColorPath);
  }
};

// A session that has opened a file with this palette and one vehicle.
class OpenedPalette : public Opened {
 public:
  explicit OpenedPalette(std::initializer_list<std::string_view> colors)
      : Opened("col\r\n" + CrLf(colors) + CrLf({"end", "car", "bus,0,0", "end"})) {}
};

// A session that has opened a file with a palette of two colours and these vehicles.
class OpenedPairs : public Opened {
 public:
  explicit OpenedPairs(std::initializer_list<std::string_view> vehicles)
      : Opened(CrLf({"col", "1,2,3\t# 0 red", "4,5,6\t# 1 sky", "end", "car"}) + CrLf(vehicles) +
               CrLf({"end"})) {}
};

// A saved file: the banner, the lines and the line ends of the two writes.
std::string File(std::initializer_list<std::string_view> lines) { return kBanner + CrLf(lines) + "\r\n\r\n"; }

// A file with a palette section of these lines and one vehicle.
std::string WithPalette(std::initializer_list<std::string_view> lines) {
  return "col\r\n" + CrLf(lines) + CrLf({"end", "car", "bus, 0, 0", "end"});
}

TEST(ColorFile, FillsTheTablesTheirSnapshotsAndTheLists) {
  Opened test(CrLf({"# head", "col", "5,15,25\t\t\t\t# 0 black", "245,246,247\t# 1 white", "end", "car",
                    "taxi, 0,1, 1,1", "bus, 1,0", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), (Texts{"0: 5,15,25 black", "1: 245,246,247 white"}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), (Texts{"taxi 0,1 1,1", "bus 1,0"}));
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), TextsOf(test.vars.Colors));
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), TextsOf(test.vars.CarColors));
  const Texts labels = {"black - 5,15,25", "white - 245,246,247"};
  EXPECT_EQ(test.main.lstColors.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor1.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor2.Rows(), labels);
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Texts{"bus", "taxi"}));
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ColorFile, ChoosesTheFirstColorsAndTheFirstVehicleButNoRowOfTheListBoxes) {
  OpenedPairs test({"taxi,0,1,1,1", "bus,1,0"});
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  EXPECT_EQ(test.main.cmbColor2.Row(), 0);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{1, 2, 3}));
  EXPECT_EQ(test.main.picColor2.Color(), (std::array{1, 2, 3}));
  EXPECT_EQ(test.main.cmbAutos.Text(), "bus");
  EXPECT_EQ(test.vars.CurrentCarColor, 1);
  EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{"sky - red"});
  EXPECT_EQ(test.main.lstCarColors.Row(), RowList::kNoRow);
  EXPECT_EQ(test.main.lstColors.Row(), RowList::kNoRow);
  EXPECT_EQ(test.main.picFarbe.Color(), std::nullopt);
}

TEST(ColorFile, AFailureInThePaletteKeepsTheTablesOfBefore) {
  OpenedPalette test({"1,1,1\t# 0 oak"});
  test.OpenColors(CrLf({"col", "2,2,2\t# 0 elm", "x,2,2\t# 1 ash", "end", "car", "cab,0,0", "end"}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 1,1,1 oak"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 0,0"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), (Texts{"0: 2,2,2 elm", "1: 0,0,0 "}));
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,0"});
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{"elm - 2,2,2"});
}

TEST(ColorFile, APaletteWithoutAColorEndsInTheFailureOfChoosing) {
  Opened test(CrLf({"col", "end", "car", "bus,0,0", "end"}));
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNothingToChoose}));
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 0,0,0 "});
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,0"});
  EXPECT_FALSE(test.vars.CarColors.IsAllocated());
}

TEST(ColorFile, AFileWithoutVehiclesEndsInTheFailureOfChoosing) {
  Opened test(CrLf({"col", "1,1,1\t# 0 oak", "end"}));
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", kNothingToChoose}));
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{""});
  EXPECT_EQ(test.main.cmbColor1.Rows(), Texts{"oak - 1,1,1"});
}

TEST(ColorFile, ADamagedVehicleLineKeepsThePaletteOfTheFirstPass) {
  OpenedPairs test({"bus,1,0"});
  test.OpenColors(CrLf({"car", "cab,0,0", "cab,0", "end", "col", "9,9,9\t# 0 tar", "end"}));
  EXPECT_EQ(test.LastShown(), "error: E1503");
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 9,9,9 tar"});
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{"tar - 9,9,9"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"bus 1,0"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"cab 0,0"});
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{});
  EXPECT_EQ(test.vars.CurrentFile, "");
  EXPECT_FALSE(test.main.SSTab3.IsEnabled());
}

TEST(ColorFile, ASecondFileLeavesTheOldLabelsInFrontOfTheNewOnes) {
  OpenedPairs test({"bus,1,0"});
  test.OpenColors(CrLf({"col", "9,9,9\t# 0 tar", "end", "car", "cab,0,0", "end"}));
  const Texts labels = {"red - 1,2,3", "sky - 4,5,6", "tar - 9,9,9"};
  EXPECT_EQ(test.main.cmbColor1.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor2.Rows(), labels);
  EXPECT_EQ(test.main.cmbColor1.Row(), 0);
  EXPECT_EQ(test.main.picColor1.Color(), (std::array{9, 9, 9}));
  EXPECT_EQ(test.main.lstColors.Rows(), Texts{"tar - 9,9,9"});
  EXPECT_EQ(TextsOf(test.vars.Colors), Texts{"0: 9,9,9 tar"});
  EXPECT_EQ(TextsOf(test.vars.CarColors), Texts{"cab 0,0"});
}

TEST(ColorFile, ASaveMakesTheSnapshotsEqualToTheTables) {
  Opened test(WithPalette({"1,1,1\t# 0 oak"}));
  test.main.cmdNewColor.ClickByHand();
  test.main.cmdAddColor.ClickByHand();
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), Texts{"0: 1,1,1 oak"});
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,0"});
  test.Saved();
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), (Texts{"0: 1,1,1 oak", "1: 0,128,255 Color1"}));
  EXPECT_EQ(TextsOf(test.vars.Kopie_CarColors), Texts{"bus 0,0 0,0"});
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ColorFile, SaveAsRewritesThePaletteOfTheOpenFileToo) {
  Opened test(WithPalette({"1,1,1\t# 0 oak"}));
  test.main.lstColors.ChooseByHand(0);
  test.main.HScroll1.MoveByHand(200);
  test.main.cmdAddColor.ClickByHand();
  test.desktop.choices.push_back(FileChoice{"/game/other", std::nullopt});
  test.main.cmdSaveAs.ClickByHand();
  EXPECT_EQ(test.Disk(TestSession::kColorPath), kBanner + WithPalette({"200,1,1\t\t\t\t# 0 oak"}) + "\r\n");
  EXPECT_EQ(test.Disk("/game/other"),
            File({"col", "200,1,1\t\t\t\t# 0 oak", "end", "car", "bus, 0, 0, 0, 0", "end"}));
  EXPECT_EQ(test.files.written, (Texts{TestSession::kColorPath, "/game/other"}));
}

TEST(ColorFile, AFailingFirstWriteLeavesTheSnapshots) {
  Opened test(WithPalette({"1,1,1\t# 0 oak"}));
  test.main.lstColors.ChooseByHand(0);
  test.main.HScroll1.MoveByHand(200);
  test.files.failingWrites[TestSession::kColorPath] = FailureNumber::DiskFull;
  test.desktop.choices.push_back(FileChoice{"/game/other", std::nullopt});
  test.main.cmdSaveAs.ClickByHand();
  EXPECT_EQ(test.LastShown(), "error: Error: 61 - Disk full");
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), Texts{"0: 1,1,1 oak"});
  EXPECT_EQ(test.Disk(TestSession::kColorPath), WithPalette({"1,1,1\t# 0 oak"}));
  EXPECT_FALSE(test.files.Exists("/game/other"));
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(ColorFile, AFailingSecondWriteLeavesTheSnapshotsAheadAndThePaletteWritten) {
  Opened test(WithPalette({"1,1,1\t# 0 oak"}));
  test.main.lstColors.ChooseByHand(0);
  test.main.HScroll1.MoveByHand(200);
  test.files.failingWrites["/game/other"] = FailureNumber::DiskFull;
  test.desktop.choices.push_back(FileChoice{"/game/other", std::nullopt});
  test.main.cmdSaveAs.ClickByHand();
  EXPECT_EQ(test.LastShown(), "error: Error: 61 - Disk full");
  EXPECT_EQ(TextsOf(test.vars.Kopie_Colors), Texts{"0: 200,1,1 oak"});
  EXPECT_EQ(test.Disk(TestSession::kColorPath), kBanner + WithPalette({"200,1,1\t\t\t\t# 0 oak"}) + "\r\n");
  EXPECT_FALSE(test.vars.IsSaved);
}

}  // namespace
}  // namespace wheelwright::testing
