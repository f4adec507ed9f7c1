// From the start of the program to the idle window, and its end.
#include "forms/Wiring.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Log = std::vector<std::string>;

// A language file whose line for entry 117 is the question at the end.
std::string LanguageWithQuestion(const std::string& question) {
  std::string text;
  for (int entry = 0; entry < 117; ++entry) text += "x\r\n";
  return text + question + "\r\n";
}

// A settings store that notes what is written.
class NotedSettings : public MemorySettings {
 public:
  explicit NotedSettings(Log& log) : log_(log) {}
  void Set(const std::string& section, const std::string& key, const std::string& value) override {
    log_.push_back(section + "/" + key + "=" + value);
    MemorySettings::Set(section, key, value);
  }

 private:
  Log& log_;
};

// A wired session, not started, with a log of what the start does in which order.
class Program {
 public:
  Program() {
    WireEvents(session);
    files.contents["/app/Eins.lng"] = LanguageWithQuestion("End?");
    NoteVisibility(session.main.SSTab1, "SSTab1");
    NoteVisibility(session.main.SSTab2, "SSTab2");
    NoteVisibility(session.main.SSTab3, "SSTab3");
    NoteVisibility(session.error, "frmError");
    session.main.cmbSprache.notice = [this](Aspect aspect) {
      if (aspect != Aspect::Choice) return;
      log.push_back(session.vars.IsSaved ? "language, saved" : "language, not saved");
    };
  }

  void Start() { StartUp(session, "/app"); }

  Log log;
  FakeDesktop desktop;
  NotedSettings settings{log};
  MemoryFiles files;
  Session session{desktop, settings, files};

 private:
  static std::string Shown(bool visible) { return visible ? " shown" : " hidden"; }

  void NoteVisibility(Control& control, const std::string& name) {
    control.notice = [this, &control, name](Aspect aspect) {
      if (aspect == Aspect::State) log.push_back(name + Shown(control.IsVisible()));
    };
  }
  void NoteVisibility(Window& window, const std::string& name) {
    window.notice = [this, &window, name] { log.push_back(name + Shown(window.IsVisible())); };
  }
};

TEST(Lifecycle, StartsInTheOrderOfItsSteps) {
  Program program;
  program.session.vars.IsSaved = false;
  program.session.error.SetVisible(true);
  program.log.clear();
  program.Start();
  const Log expected = {"Exe/Path=/app/", "Exe/Version=1.0.0", "SSTab1 shown",    "SSTab2 hidden",
                        "SSTab3 hidden",  "frmError hidden",   "language, saved", "Settings/Language=Eins"};
  EXPECT_EQ(program.log, expected);
}

TEST(Lifecycle, AppPathEndsInASeparator) {
  Program program;
  StartUp(program.session, "/app");
  EXPECT_EQ(program.session.vars.AppPath, "/app/");
}

TEST(Lifecycle, ADirectoryThatEndsInASeparatorGetsNoSecondOne) {
  Program program;
  program.files.contents["/Eins.lng"] = "x";
  StartUp(program.session, "/");
  EXPECT_EQ(program.session.vars.AppPath, "/");
  EXPECT_EQ(program.settings.Get("Exe", "Path"), "/");
}

TEST(Lifecycle, StartsWithNoFileOpen) {
  Program program;
  program.session.vars.CurrentFileType = kColorFile;
  program.Start();
  const Vars& vars = program.session.vars;
  EXPECT_EQ(vars.CurrentFile, "");
  EXPECT_EQ(vars.CurrentFileType, kHandlingFile);
  EXPECT_TRUE(vars.IsSaved);
  EXPECT_FALSE(vars.Cars.IsAllocated() || vars.Kopie_Cars.IsAllocated());
  EXPECT_FALSE(vars.Ides.IsAllocated() || vars.Kopie_Ides.IsAllocated());
  EXPECT_FALSE(vars.Colors.IsAllocated() || vars.Kopie_Colors.IsAllocated());
  EXPECT_FALSE(vars.CarColors.IsAllocated() || vars.Kopie_CarColors.IsAllocated());
  EXPECT_EQ(vars.CurrentCar, 0);
  EXPECT_EQ(vars.CurrentIde, 0);
  EXPECT_EQ(vars.CurrentCarColor, 0);
  EXPECT_TRUE(program.desktop.shown.empty());
  EXPECT_TRUE(program.files.written.empty());
}

TEST(Lifecycle, OnlyOpeningHelpAndTheEndCanBeUsedAtTheStart) {
  Program program;
  program.Start();
  const FrmMain& main = program.session.main;
  for (const Button* button : {&main.cmdOpen, &main.cmdInfo, &main.cmdHelp, &main.cmdEnde}) {
    EXPECT_TRUE(button->IsEnabledHere() && button->IsVisibleHere()) << button->Name();
  }
  for (const Button* button : {&main.cmdSave, &main.cmdSaveAs, &main.cmdBackup, &main.cmdUndo}) {
    EXPECT_FALSE(button->IsEnabledHere()) << button->Name();
  }
  EXPECT_FALSE(main.FrameAutos.IsEnabled());
  EXPECT_FALSE(main.cmbAutos.IsEnabledHere());
  EXPECT_TRUE(main.cmbSprache.IsEnabledHere());
  EXPECT_FALSE(program.session.error.IsVisible());
  EXPECT_FALSE(program.session.exporter.IsVisible());
  EXPECT_TRUE(program.session.error.lstErrors.Rows().empty());
}

TEST(Lifecycle, WithoutALanguageFileTheSettingsOfTheProgramAreWrittenAllTheSame) {
  Program program;
  program.files.contents.clear();
  program.Start();
  EXPECT_EQ(program.desktop.shown,
            (Log{"error: No language-file found! Please reinstall the application.", "end"}));
  EXPECT_EQ(program.settings.values.size(), 2u);
  EXPECT_EQ(program.settings.Get("Exe", "Path"), "/app/");
  EXPECT_EQ(program.settings.Get("Exe", "Version"), "1.0.0");
}

TEST(Lifecycle, TheFirstOpenDialogHasNoFilterIndexAndNoFile) {
  Program program;
  program.Start();
  program.desktop.choices = {std::nullopt};
  program.session.main.cmdOpen.ClickByHand();
  ASSERT_EQ(program.desktop.dialogs.size(), 1u);
  EXPECT_EQ(program.desktop.dialogs[0].filterIndex, 0);
  EXPECT_EQ(program.desktop.dialogs[0].file, "");
}

// The two ways to the end; each must do the same.
enum class Way { Button, CloseBox };

class End : public ::testing::TestWithParam<Way> {
 protected:
  End() { program.Start(); }

  void Request() {
    if (GetParam() == Way::Button) {
      program.session.main.cmdEnde.ClickByHand();
    } else {
      program.session.main.closeRequested();
    }
  }

  Program program;
};

TEST_P(End, ComesAtOnceWhileNoEditIsPending) {
  Request();
  EXPECT_EQ(program.desktop.shown, (Log{"end"}));
}

TEST_P(End, ComesAfterYesToTheQuestion) {
  program.session.vars.IsSaved = false;
  program.desktop.answers = {true};
  Request();
  EXPECT_EQ(program.desktop.shown, (Log{"question: End?", "end"}));
}

TEST_P(End, NeverComesAfterNo) {
  program.session.main.txtAuthor.EditByHand("a");
  program.desktop.answers = {false};
  const auto settingsBefore = program.settings.values;
  Request();
  EXPECT_EQ(program.desktop.shown, (Log{"question: End?"}));
  EXPECT_FALSE(program.session.vars.IsSaved);
  EXPECT_EQ(program.session.main.txtAuthor.Text(), "a");
  EXPECT_EQ(program.settings.values, settingsBefore);
}

TEST_P(End, WritesNothing) {
  program.session.vars.IsSaved = false;
  program.desktop.answers = {true};
  program.log.clear();
  Request();
  EXPECT_EQ(program.log, Log{});
  EXPECT_TRUE(program.files.written.empty());
}

INSTANTIATE_TEST_SUITE_P(Lifecycle, End, ::testing::Values(Way::Button, Way::CloseBox));

TEST(Lifecycle, MovingThroughTheVehiclesAsksNothingAtTheEnd) {
  TestSession s;
  s.OpenHandling(CrLf({VehicleLineOf("AXO"), VehicleLineOf("BYL"), VehicleLineOf("CID")}));
  for (const int row : {2, 1, 0}) s.main.cmbAutos.ChooseByHand(row);
  s.main.cmdEnde.ClickByHand();
  EXPECT_EQ(s.LastShown(), "end");
}

TEST(Lifecycle, OneCharacterOfAnAuthorAsksAtTheEnd) {
  TestSession s;
  s.OpenHandling(CrLf({VehicleLineOf("AXO")}));
  s.main.txtAuthor.EditByHand("a");
  s.desktop.answers = {false};
  s.main.cmdEnde.ClickByHand();
  EXPECT_EQ(s.LastShown(), "question: E117");
}

TEST(Lifecycle, TheThirdFlagAloneAsksNothingAtTheEnd) {
  TestSession s;
  s.OpenHandling(CrLf({VehicleLineOf("AXO")}));
  s.main.chkFlag[2].ClickByHand();
  s.main.cmdEnde.ClickByHand();
  EXPECT_EQ(s.LastShown(), "end");
}

}  // namespace
}  // namespace wheelwright::testing
