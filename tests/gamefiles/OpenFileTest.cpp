#include "gamefiles/OpenFile.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"
#include "support/Watch.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

constexpr const char* kPath = TestSession::kHandlingPath;

const std::string kBus = CrLf({VehicleLineOf("BUS")});
const std::string kDefinition =
    CrLf({"cars", "90, bus, bus, car, BUS, BUS, null, normal, 10, 7, 0, 164, 0.8", "end"});
const std::string kColors = CrLf({"col", "1,2,3\t# 0 black", "end", "car", "bus, 0,0", "end"});

class OpenFileTest : public ::testing::Test {
 protected:
  std::string Setting(const std::string& key) const { return test.settings.GetOr("Settings", key, "absent"); }

  // The file dialog as it came up last.
  const FileDialog& Dialog() const { return test.desktop.dialogs.back(); }

  // A person opens a file that is on the disk already, or isn't.
  void Choose(const std::string& file, std::optional<int> filterIndex) {
    test.desktop.choices.push_back(FileChoice{file, filterIndex});
    test.main.cmdOpen.ClickByHand();
  }

  void Cancel() {
    test.desktop.choices.push_back(std::nullopt);
    test.main.cmdOpen.ClickByHand();
  }

  // A "v" for each visible and an "e" for each enabled tab set.
  std::string StatesOfTabSets() const {
    std::string text;
    for (const TabGroup* tabs : {&test.main.SSTab1, &test.main.SSTab2, &test.main.SSTab3}) {
      text += tabs->IsVisible() ? 'v' : '-';
      text += tabs->IsEnabled() ? 'e' : '-';
    }
    return text;
  }

  TestSession test;
};

// Step 1: pending edits

TEST_F(OpenFileTest, NothingIsAskedWhenNothingIsPending) {
  test.OpenHandling(kBus);
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal"}));
}

TEST_F(OpenFileTest, NoEndsTheCommandWithNothingChanged) {
  test.vars.IsSaved = false;
  test.desktop.answers.push_back(false);
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{"question: E118"});
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.main.CmD1.title, "");
}

TEST_F(OpenFileTest, YesGoesOnToTheDialog) {
  test.OpenHandling(kBus);
  test.main.txtGewicht.EditByHand("1");
  test.desktop.shown.clear();
  test.desktop.answers.push_back(true);
  test.OpenHandling(CrLf({VehicleLineOf("TAXI")}));
  EXPECT_EQ(test.desktop.shown, (Texts{"question: E118", "open", "hourglass", "normal"}));
  EXPECT_EQ(NamesOf(test.vars.Cars), Texts{"TAXI"});
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST_F(OpenFileTest, YesAndThenCancelKeepsAllEdits) {
  test.OpenHandling(kBus);
  test.main.txtGewicht.EditByHand("1");
  test.desktop.answers.push_back(true);
  Cancel();
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.vars.Cars.At(0).Mass, "1");
  test.desktop.answers.push_back(false);
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.LastShown(), "question: E118");
}

// Step 2: the dialog

TEST_F(OpenFileTest, TheDialogComesUpWithEmptySettings) {
  Cancel();
  EXPECT_EQ(Dialog().title, "E013");
  EXPECT_EQ(Dialog().filter,
            "E014 (*.cfg)|*.cfg;*.cfg.backup|E122 (*.ide)|*.ide;*.ide.backup|E152 "
            "(*.dat)|*.dat;*.dat.backup|");
  EXPECT_EQ(Dialog().filterIndex, 0);
  EXPECT_EQ(Dialog().file, "");
  EXPECT_EQ(Dialog().flags, 5);
}

TEST_F(OpenFileTest, TheDialogComesUpWithTheLastChoice) {
  test.files.contents[kPath] = kBus;
  test.settings.Set("Settings", "OpenPath", kPath);
  test.settings.Set("Settings", "FileIndex", "3");
  Cancel();
  EXPECT_EQ(Dialog().filterIndex, 3);
  EXPECT_EQ(Dialog().file, kPath);
}

TEST_F(OpenFileTest, ALastChoiceThatIsGoneGivesAnEmptyName) {
  test.main.CmD1.file = "/game/of/an/earlier/use.cfg";
  test.settings.Set("Settings", "OpenPath", "/game/gone.cfg");
  Cancel();
  EXPECT_EQ(Dialog().file, "");
}

TEST_F(OpenFileTest, AFilterIndexThatIsNoNumberFailsBeforeTheDialog) {
  test.OpenHandling(kBus);
  test.settings.Set("Settings", "FileIndex", "one");
  test.desktop.shown.clear();
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{"error: Error: 13 - Type mismatch"});
  EXPECT_EQ(test.vars.CurrentFile, "");
  EXPECT_FALSE(test.main.cmdSave.IsEnabled());
}

TEST_F(OpenFileTest, TitleAndFilterAreSetBeforeTheIndexFileAndFlagsBehindIt) {
  test.settings.Set("Settings", "FileIndex", "99999");
  test.main.CmD1.file = "/game/old.cfg";
  test.main.CmD1.flags = 2;
  test.main.cmdOpen.ClickByHand();
  EXPECT_EQ(test.desktop.shown, Texts{"error: Error: 6 - Overflow"});
  EXPECT_EQ(test.main.CmD1.title, "E013");
  EXPECT_EQ(test.main.CmD1.filter.substr(0, 12), "E014 (*.cfg)");
  EXPECT_EQ(test.main.CmD1.file, "/game/old.cfg");
  EXPECT_EQ(test.main.CmD1.flags, 2);
}

TEST_F(OpenFileTest, AFilterIndexWithAFractionIsRounded) {
  test.settings.Set("Settings", "FileIndex", " 2,5 ");
  Cancel();
  EXPECT_EQ(Dialog().filterIndex, 2);
}

// Step 3: cancelling

TEST_F(OpenFileTest, ACancelledDialogChangesNothing) {
  test.OpenHandling(kBus);
  test.desktop.shown.clear();
  const std::string title = test.main.Title();
  Cancel();
  EXPECT_EQ(test.desktop.shown, Texts{"open"});
  EXPECT_EQ(test.vars.CurrentFile, kPath);
  EXPECT_EQ(test.main.Title(), title);
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"BUS"});
  EXPECT_TRUE(test.main.cmdSave.IsEnabled());
  EXPECT_EQ(Setting("OpenPath"), kPath);
}

TEST_F(OpenFileTest, ACancelledFirstDialogStoresNoSetting) {
  Cancel();
  EXPECT_EQ(Setting("OpenPath"), "absent");
  EXPECT_EQ(Setting("FileIndex"), "absent");
}

// Steps 5 to 10: files that aren't loaded

TEST_F(OpenFileTest, AFileThatIsntThereLeavesAllButNameAndSettings) {
  test.OpenHandling(kBus);
  test.desktop.shown.clear();
  Choose("/game/gone.cfg", 3);
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", "error: E012"}));
  EXPECT_EQ(test.vars.CurrentFile, "/game/gone.cfg");
  EXPECT_EQ(Setting("OpenPath"), "/game/gone.cfg");
  EXPECT_EQ(Setting("FileIndex"), "3");
  EXPECT_EQ(test.main.Title(), "GTAViceCity PC-Version - Wheelwright [/game/handling.cfg]");
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"BUS"});
  EXPECT_TRUE(test.main.cmdSave.IsEnabled());
  EXPECT_TRUE(test.main.SSTab1.IsEnabled());
}

TEST_F(OpenFileTest, AnUnknownKindLeavesAllButNameSettingsTitleAndList) {
  test.OpenHandling(kBus);
  test.desktop.shown.clear();
  test.files.contents["/game/other.CFG"] = kBus;
  Choose("/game/other.CFG", 1);
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal", "error: Error: Filetype unknown!"}));
  EXPECT_EQ(test.vars.CurrentFile, "/game/other.CFG");
  EXPECT_EQ(Setting("OpenPath"), "/game/other.CFG");
  EXPECT_EQ(test.main.Title(), "GTAViceCity PC-Version - Wheelwright [/game/other.CFG]");
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{});
  for (const Control* control :
       std::initializer_list<Control*>{&test.main.cmdSave, &test.main.cmdSaveAs, &test.main.cmdBackup,
                                       &test.main.cmdUndo, &test.main.FrameAutos, &test.main.SSTab1}) {
    EXPECT_TRUE(control->IsEnabled()) << control->Name();
  }
  EXPECT_EQ(NamesOf(test.vars.Cars), Texts{"BUS"});
}

TEST_F(OpenFileTest, AFilesNameAndFilterIndexMustAgree) {
  struct Case {
    const char* file;
    int index;
    int type;  // -1: unknown
  };
  for (const Case& c :
       std::vector<Case>{{"/g/handling.cfg", 1, 0},  {"/g/mycfg", 1, 0},          {"/g/a.cfg.backup", 1, 0},
                         {"/g/default.ide", 2, 1},   {"/g/a.ide.backup", 2, 1},   {"/g/carcols.dat", 3, 2},
                         {"/g/a.dat.backup", 3, 2},  {"/g/handling.cfg", 2, -1},  {"/g/handling.cfg", 3, -1},
                         {"/g/handling.cfg", 0, -1}, {"/g/handling.cfg", 4, -1},  {"/g/default.ide", 1, -1},
                         {"/g/carcols.dat", 2, -1},  {"/g/HANDLING.CFG", 1, -1},  {"/g/handling.Cfg", 1, -1},
                         {"/g/a.cfg.Backup", 1, -1}, {"/g/a.cfg.backup2", 1, -1}, {"/g/a.backup", 1, -1},
                         {"/g/a.ide.backup", 1, -1}, {"/g/a.cfg ", 1, -1}}) {
    TestSession session;
    session.vars.CurrentFileType = -1;
    session.Open(c.file, c.type == 0 ? kBus : c.type == 1 ? kDefinition : kColors, c.index);
    EXPECT_EQ(session.vars.CurrentFileType, c.type) << c.file << " with index " << c.index;
    EXPECT_EQ(session.LastShown(), c.type == -1 ? "error: Error: Filetype unknown!" : "normal");
    EXPECT_EQ(session.vars.CurrentFile, c.file);
  }
}

TEST_F(OpenFileTest, TheFilterIndexIsReadBackFromTheDialog) {
  test.settings.Set("Settings", "FileIndex", "1");
  test.files.contents[kPath] = kBus;
  Choose(kPath, std::nullopt);
  EXPECT_EQ(test.LastShown(), "normal");
  Choose(kPath, 2);
  EXPECT_EQ(test.LastShown(), "error: Error: Filetype unknown!");
  EXPECT_EQ(Setting("FileIndex"), "2");
}

// Steps 8 to 19: a load

TEST_F(OpenFileTest, TheStepsOfALoadComeInOrder) {
  test.main.txtAuthor.SetText("old");
  test.main.txtDate.SetText("old");
  test.vars.IsSaved = true;
  WatchTitle(test);
  WatchRows(test, test.main.cmbAutos);
  for (TabGroup* tabs : {&test.main.SSTab1, &test.main.SSTab2, &test.main.SSTab3}) {
    WatchShowing(test, *tabs);
  }
  for (TextBox* box :
       std::initializer_list<TextBox*>{&test.main.txtAuthor, &test.main.txtDate, &test.main.txtAutoname}) {
    WatchText(test, *box);
  }
  test.OpenHandling(CrLf({"; Author: Ada", "; Created 2003"}) + kBus);
  EXPECT_EQ(test.desktop.shown,
            (Texts{"open", "hourglass", "title: GTAViceCity PC-Version - Wheelwright [/game/handling.cfg]",
                   "cmbAutos: 0 rows", "SSTab1 shown", "SSTab2 hidden", "SSTab3 hidden",
                   "txtAuthor: ", "txtDate: ", "txtAuthor: Ada", "txtDate: 2003", "cmbAutos: 1 rows",
                   "cmbAutos: row 0", "txtAutoname: BUS", "SSTab1 shown", "normal"}));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST_F(OpenFileTest, CommandsAreEnabledInOrderBehindTheirTabSet) {
  for (Control* control :
       std::initializer_list<Control*>{&test.main.SSTab1, &test.main.cmdSave, &test.main.cmdBackup,
                                       &test.main.FrameAutos, &test.main.cmdUndo, &test.main.cmdSaveAs}) {
    WatchEnabling(test, *control);
  }
  WatchRows(test, test.main.cmbAutos);
  test.OpenHandling(kBus);
  EXPECT_EQ(test.desktop.shown,
            (Texts{"open", "hourglass", "cmbAutos: 0 rows", "SSTab1 off", "cmbAutos: 1 rows",
                   "cmbAutos: row 0", "SSTab1 on", "cmdSave on", "cmdBackup on", "FrameAutos on",
                   "cmdUndo on", "cmdSaveAs on", "normal"}));
}

TEST_F(OpenFileTest, EachKindShowsAndEnablesItsTabSetAlone) {
  EXPECT_EQ(StatesOfTabSets(), "v-----");
  test.OpenColors(kColors);
  EXPECT_EQ(StatesOfTabSets(), "----ve");
  test.OpenDefinition(kDefinition);
  EXPECT_EQ(StatesOfTabSets(), "--ve-e");
  test.OpenHandling(kBus);
  EXPECT_EQ(StatesOfTabSets(), "ve-e-e");
}

TEST_F(OpenFileTest, TheFirstEntryOfTheListIsShown) {
  test.OpenHandling(CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BUS", "5500.0")}));
  EXPECT_EQ(test.main.cmbAutos.Row(), 0);
  EXPECT_EQ(test.main.txtAutoname.Text(), "BUS");
  EXPECT_EQ(test.main.txtGewicht.Text(), "5500.0");
  EXPECT_EQ(test.vars.CurrentCar, 1);
}

TEST_F(OpenFileTest, AuthorAndDateAreClearedForHandlingFilesOnly) {
  test.OpenHandling(CrLf({"; Author: Ada", "; Created 2003"}) + kBus);
  test.OpenDefinition(kDefinition);
  test.OpenColors(kColors);
  EXPECT_EQ(test.main.txtAuthor.Text(), "Ada");
  EXPECT_EQ(test.main.txtDate.Text(), "2003");
  test.OpenHandling(kBus);
  EXPECT_EQ(test.main.txtAuthor.Text(), "");
  EXPECT_EQ(test.main.txtDate.Text(), "");
}

TEST_F(OpenFileTest, BareLineFeedsAreReplacedOnDiskForEveryKind) {
  test.OpenHandling(VehicleLineOf("BUS") + "\n");
  EXPECT_EQ(test.Disk(kPath), kBus + "\r\n");
  test.OpenDefinition("cars\n90, bus, bus, car, BUS, BUS, null, normal, 10, 7, 0, 164, 0.8\nend");
  EXPECT_EQ(test.Disk(TestSession::kDefinitionPath), kDefinition);
  test.OpenColors("col\n1,2,3\t# 0 black\nend\ncar\nbus, 0,0\nend");
  EXPECT_EQ(test.Disk(TestSession::kColorPath), kColors);
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"bus"});
}

TEST_F(OpenFileTest, AFileWithProperLineEndsIsLeftAlone) {
  test.files.readOnly.insert(kPath);
  test.OpenHandling(kBus);
  EXPECT_EQ(test.files.written, Texts{});
  EXPECT_EQ(test.LastShown(), "normal");
}

TEST_F(OpenFileTest, ASecondFileOfTheKindReplacesTheTable) {
  test.OpenHandling(CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BUS")}));
  test.OpenHandling(CrLf({VehicleLineOf("VAN")}));
  EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{"VAN"});
  EXPECT_EQ(NamesOf(test.vars.Cars), Texts{"VAN"});
  EXPECT_EQ(NamesOf(test.vars.Kopie_Cars), Texts{"VAN"});
}

TEST_F(OpenFileTest, AFileOfAnotherKindLeavesTheTablesOfTheFirstInMemory) {
  test.OpenHandling(kBus);
  test.OpenDefinition(kDefinition);
  EXPECT_EQ(NamesOf(test.vars.Cars), Texts{"BUS"});
  EXPECT_EQ(NamesOf(test.vars.Kopie_Cars), Texts{"BUS"});
  EXPECT_FALSE(test.main.SSTab1.IsVisible());
}

TEST_F(OpenFileTest, ABackupIsLoadedAndKeepsItsLongerName) {
  test.Open("/game/handling.cfg.backup", kBus, 1);
  EXPECT_EQ(test.LastShown(), "normal");
  EXPECT_EQ(test.vars.CurrentFile, "/game/handling.cfg.backup");
  EXPECT_EQ(test.main.Title(), "GTAViceCity PC-Version - Wheelwright [/game/handling.cfg.backup]");
}

}  // namespace
}  // namespace wheelwright::testing
