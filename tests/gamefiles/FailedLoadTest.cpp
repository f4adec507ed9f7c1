// What the open command leaves behind when it fails, and when it can't tell the kind of a file.
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"
#include "support/Watch.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

constexpr const char* kPath = TestSession::kHandlingPath;

const std::string kBus = CrLf({VehicleLineOf("BUS")});
const std::string kNoVehicle = CrLf({"; no vehicle"});

class FailedLoadTest : public ::testing::Test {
 protected:
  // Opens a file with an edit pending.
  void OpenAfterAnEdit(const std::string& path, const std::string& text, int filterIndex) {
    test.OpenHandling(kBus);
    test.main.txtGewicht.EditByHand("1");
    test.desktop.answers.push_back(true);
    test.desktop.shown.clear();
    test.Open(path, text, filterIndex);
  }

  void ExpectResetState() {
    EXPECT_EQ(test.vars.CurrentFile, "");
    for (const Control* control : std::initializer_list<Control*>{
             &test.main.cmdSave, &test.main.cmdSaveAs, &test.main.cmdBackup, &test.main.FrameAutos,
             &test.main.SSTab1, &test.main.SSTab2, &test.main.SSTab3, &test.main.cmdUndo}) {
      EXPECT_FALSE(control->IsEnabled()) << control->Name();
    }
    EXPECT_TRUE(test.vars.IsSaved);
    EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{});
    EXPECT_TRUE(test.main.cmdOpen.IsEnabled());
  }

  void NoteState() {
    test.desktop.shown.push_back("file '" + test.vars.CurrentFile +
                                 (test.vars.IsSaved ? "', saved" : "', pending"));
  }

  TestSession test;
};

TEST_F(FailedLoadTest, AFileWithoutAVehicleResetsTheWindow) {
  OpenAfterAnEdit(kPath, kNoVehicle, 1);
  EXPECT_EQ(test.desktop.shown, (Texts{"question: E118", "open", "hourglass", "normal",
                                       "error: Error: 380 - Invalid property value"}));
  ExpectResetState();
  EXPECT_EQ(NamesOf(test.vars.Cars), Texts{""});
}

TEST_F(FailedLoadTest, AFileThatCantBeReadResetsTheWindowOfTheFailedKind) {
  for (const auto& [path, index] : std::vector<std::pair<const char*, int>>{{TestSession::kHandlingPath, 1},
                                                                            {TestSession::kDefinitionPath, 2},
                                                                            {TestSession::kColorPath, 3}}) {
    test.files.failingReads.clear();
    test.files.failingReads["/game/bad" + std::string(path).substr(5)] = FailureNumber::DeviceIoError;
    OpenAfterAnEdit("/game/bad" + std::string(path).substr(5), "", index);
    EXPECT_EQ(test.LastShown(), "error: Error: 57 - Device I/O error");
    ExpectResetState();
    EXPECT_EQ(test.vars.CurrentFileType, index - 1);
    EXPECT_EQ(test.main.Title(),
              "GTAViceCity PC-Version - Wheelwright [/game/bad" + std::string(path).substr(5) + "]");
    EXPECT_EQ(NamesOf(test.vars.Cars), Texts{"BUS"});
  }
}

TEST_F(FailedLoadTest, AnIndexFailureOfTheReaderResetsTheWindow) {
  OpenAfterAnEdit(kPath, CrLf({"% BOAT", VehicleLineOf("BOAT")}), 1);
  EXPECT_EQ(test.LastShown(), "error: Error: 9 - Subscript out of range");
  ExpectResetState();
}

TEST_F(FailedLoadTest, AReadOnlyFileWithBareLineFeedsResetsTheWindow) {
  test.files.readOnly.insert("/game/bare.cfg");
  OpenAfterAnEdit("/game/bare.cfg", VehicleLineOf("TAXI") + "\n", 1);
  EXPECT_EQ(test.LastShown(), "error: Error: 75 - Path/File access error");
  ExpectResetState();
  EXPECT_EQ(test.Disk("/game/bare.cfg"), VehicleLineOf("TAXI") + "\n");
}

TEST_F(FailedLoadTest, TheStepsOfTheFailurePathComeInOrder) {
  test.OpenHandling(kBus);
  test.desktop.shown.clear();
  for (Control* control :
       std::initializer_list<Control*>{&test.main.cmdSave, &test.main.cmdSaveAs, &test.main.cmdBackup,
                                       &test.main.FrameAutos, &test.main.cmdUndo}) {
    WatchEnabling(test, *control);
  }
  WatchRows(test, test.main.cmbAutos);
  test.OpenHandling(kNoVehicle);
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "cmbAutos: 0 rows", "normal", "cmdSave off",
                                       "cmdSaveAs off", "cmdBackup off", "FrameAutos off", "cmdUndo off",
                                       "cmbAutos: 0 rows", "error: Error: 380 - Invalid property value"}));
}

TEST_F(FailedLoadTest, TheTabSetsAreDisabledBetweenListAndUndo) {
  test.OpenHandling(kBus);
  test.settings.Set("Settings", "FileIndex", "none");
  test.desktop.shown.clear();
  for (Control* control :
       std::initializer_list<Control*>{&test.main.FrameAutos, &test.main.SSTab1, &test.main.SSTab2,
                                       &test.main.SSTab3, &test.main.cmdUndo}) {
    WatchEnabling(test, *control);
  }
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.desktop.shown, (Texts{"FrameAutos off", "SSTab1 off", "SSTab2 off", "SSTab3 off",
                                       "cmdUndo off", "error: Error: 13 - Type mismatch"}));
}

TEST_F(FailedLoadTest, TheFilesNameGoesFirstAndTheListIsClearedBehindTheFlag) {
  test.OpenHandling(kBus);
  test.vars.IsSaved = false;
  test.desktop.answers.push_back(true);
  test.settings.Set("Settings", "FileIndex", "none");
  test.desktop.shown.clear();
  test.main.cmdSave.notice = [this](Aspect) { NoteState(); };
  test.main.cmdUndo.notice = [this](Aspect) { NoteState(); };
  test.main.cmbAutos.notice = [this](Aspect) { NoteState(); };
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.desktop.shown, (Texts{"question: E118", "file '', pending", "file '', pending",
                                       "file '', saved", "error: Error: 13 - Type mismatch"}));
}

TEST_F(FailedLoadTest, AuthorAndDateAreClearedBeforeTheFileIsRead) {
  test.main.txtAuthor.SetText("old");
  test.main.txtDate.SetText("old");
  test.vars.IsSaved = true;
  test.files.failingReads[kPath] = FailureNumber::DeviceIoError;
  test.OpenHandling(kBus);
  EXPECT_EQ(test.main.txtAuthor.Text(), "");
  EXPECT_EQ(test.main.txtDate.Text(), "");
}

TEST_F(FailedLoadTest, RowsOfTheFailedFileStayInTheOpenWindow) {
  test.OpenHandling(CrLf({"TAXI 1500.0 2.60", "% BOAT", VehicleLineOf("BOAT")}));
  EXPECT_EQ(test.LastShown(), "error: Error: 9 - Subscript out of range");
  EXPECT_EQ(test.error.lstErrors.Rows(), (std::vector<ReportList::Row>{{"TAXI", "", "E102: 3 E103"}}));
  EXPECT_TRUE(test.error.IsVisible());
}

TEST_F(FailedLoadTest, ADamagedFileResetsTheWindowAndNamesTheLine) {
  OpenAfterAnEdit("/game/default.ide", CrLf({"cars", "90, bus", "end"}), 2);
  EXPECT_EQ(test.desktop.shown, (Texts{"question: E118", "open", "hourglass", "normal", "error: E1502"}));
  ExpectResetState();
  EXPECT_EQ(test.vars.CurrentFileType, 1);
  EXPECT_TRUE(test.main.SSTab2.IsVisible());
}

TEST_F(FailedLoadTest, ADamagedFileIsToldOfOnceTheWindowIsReset) {
  test.OpenDefinition(CrLf({"cars", "130, cab, cab, car, TAXI, TAXI, null, taxi, 10, 7, 0", "end"}));
  test.desktop.shown.clear();
  WatchEnabling(test, test.main.cmdSave);
  test.OpenDefinition(CrLf({"cars", "90, bus", "end"}));
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", "cmdSave off", "error: E1502"}));
}

TEST_F(FailedLoadTest, OpeningAgainLeadsOutOfTheResetState) {
  test.OpenHandling(kNoVehicle);
  test.desktop.shown.clear();
  test.OpenHandling(kBus);
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal"}));
  EXPECT_TRUE(test.main.SSTab1.IsEnabled());
  EXPECT_TRUE(test.main.cmdSave.IsEnabled());
}

// Loads that end without a reset: the earlier file's commands stay

TEST_F(FailedLoadTest, ASaveAfterAnUnknownKindWritesTheEarlierDataIntoTheNewFile) {
  test.OpenHandling(CrLf({"; Author: Ada"}) + kBus);
  test.Open("/game/other.CFG", CrLf({"; Author: Bob", VehicleLineOf("TAXI"), "; kept"}), 1);
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.LastShown(), "information: E116");
  EXPECT_EQ(test.Disk("/game/other.CFG"),
            CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/",
                  "; Author: Ada", "; kept", ";", ";the end"}));
  EXPECT_EQ(test.Disk(kPath), CrLf({"; Author: Ada"}) + kBus);
}

TEST_F(FailedLoadTest, ASaveAfterAnUnknownKindWritesTheWholeEarlierTableOfDefinitions) {
  test.OpenDefinition(CrLf({"cars", "90, bus, bus, car, BUS, BUS, null, normal, 10, 7, 0, 164, 0.8", "end"}));
  test.Open("/game/other.cfg", CrLf({"objs", "cars", "1, x", "end"}), 2);
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(
      test.Disk("/game/other.cfg"),
      std::string(kBanner) + CrLf({"objs", "cars",
                                   "90,\tbus,\t\tbus,\t\tcar,\tBUS,\t\tBUS,\t\tnull,\t\tnormal,\t\t10, \t7, "
                                   "\t0, \t164, \t0.8",
                                   "end", ""}));
}

TEST_F(FailedLoadTest, ASaveAfterAMissingFileWritesTheEarlierDataOnceTheFileIsThere) {
  test.OpenHandling(kBus);
  test.desktop.choices.push_back(FileChoice{"/game/later.ide", 2});
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.LastShown(), "error: E012");
  test.desktop.shown.clear();
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{});
  test.files.contents["/game/later.ide"] = CrLf({"cars", "end"});
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{"information: E116"});
  EXPECT_EQ(test.Disk("/game/later.ide"),
            CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/",
                  VehicleLineOf("BUS"), ";", ";the end"}));
}

}  // namespace
}  // namespace wheelwright::testing
