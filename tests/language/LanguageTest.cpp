// Finding, choosing and reading the language files beside the program.
#include "language/LanguageFiles.h"
#include "support/HeldTables.h"
#include "support/TableRecords.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;

// So many lines, each the prefix and its number counted from 0.
std::string Numbered(const std::string& prefix, int lines) {
  std::string text;
  for (int line = 0; line < lines; ++line) text += prefix + std::to_string(line) + "\r\n";
  return text;
}

const std::string& Entry(const TestSession& s, std::size_t entry) { return s.vars.Lang[entry]; }

void AddLanguage(TestSession& s, const std::string& language, const std::string& text) {
  s.files.contents["/app/" + language + ".lng"] = text;
}

TEST(Language, WithoutAnyFileAMessageIsShownAndTheProgramEnds) {
  TestSession s;
  s.files.contents["/app/Eins.txt"] = "x";
  s.files.contents["/app/sub/Eins.lng"] = "x";
  s.main.cmbSprache.AddRow("kept");
  DiscoverLanguages(s.session);
  EXPECT_EQ(s.desktop.shown,
            (Texts{"error: No language-file found! Please reinstall the application.", "end"}));
  EXPECT_EQ(s.main.cmbSprache.Rows(), (Texts{"kept"}));
  EXPECT_EQ(Entry(s, 0), "E000");
  EXPECT_TRUE(s.settings.values.empty());
}

TEST(Language, EachFileIsARowWithoutItsLastFourCharacters) {
  TestSession s;
  AddLanguage(s, "Eins", "a");
  AddLanguage(s, "Zwei.alt", "b");
  s.files.contents["/app/Drei.txt"] = "c";
  s.files.contents["/app/lng"] = "d";
  s.files.contents["/app/Loud.LNG"] = "f";
  s.files.contents["/app/sub/Vier.lng"] = "e";
  s.main.cmbSprache.AddRow("left over");
  DiscoverLanguages(s.session);
  EXPECT_EQ(s.main.cmbSprache.Rows(), (Texts{"Eins", "Zwei.alt"}));
}

TEST(Language, TheFirstStartWithOneFileChoosesAndStoresIt) {
  TestSession s;
  AddLanguage(s, "Eins", Numbered("a", 182));
  DiscoverLanguages(s.session);
  EXPECT_EQ(s.main.cmbSprache.Rows(), (Texts{"Eins"}));
  EXPECT_EQ(s.main.cmbSprache.Row(), 0);
  EXPECT_EQ(s.settings.Get("Settings", "Language"), "Eins");
  EXPECT_EQ(s.main.cmbAnim.hint->Caption(), "a181");
  EXPECT_TRUE(s.desktop.shown.empty());
}

TEST(Language, WithoutASettingTheFirstRowIsChosen) {
  TestSession s;
  AddLanguage(s, "Zwei", "z");
  AddLanguage(s, "Eins", "e");
  DiscoverLanguages(s.session);
  EXPECT_EQ(s.main.cmbSprache.Rows(), (Texts{"Eins", "Zwei"}));
  EXPECT_EQ(s.main.cmbSprache.Text(), "Eins");
  EXPECT_EQ(s.main.FrameSprache.Caption(), "e");
}

TEST(Language, TheStoredLanguageIsChosen) {
  TestSession s;
  AddLanguage(s, "Eins", "e");
  AddLanguage(s, "Zwei", "z");
  s.settings.Set("Settings", "Language", "Zwei");
  DiscoverLanguages(s.session);
  EXPECT_EQ(s.main.cmbSprache.Row(), 1);
  EXPECT_EQ(s.main.FrameSprache.Caption(), "z");
  EXPECT_EQ(s.settings.Get("Settings", "Language"), "Zwei");
}

TEST(Language, AStoredLanguageThatIsGoneFails) {
  for (const char* stored : {"Drei", "eins", ""}) {
    TestSession s;
    AddLanguage(s, "Eins", "e");
    s.settings.Set("Settings", "Language", stored);
    EXPECT_EQ(NumberThrownBy([&] { DiscoverLanguages(s.session); }), 380);
    EXPECT_EQ(s.settings.Get("Settings", "Language"), stored);
    EXPECT_EQ(Entry(s, 0), "E000");
  }
}

TEST(Language, ANameBeyondAsciiIsShownInTheCodePageAndFoundAgain) {
  TestSession s;
  AddLanguage(s,
              "Fran\xC3\xA7"
              "ais",
              "f");
  AddLanguage(s, "English", "e");
  DiscoverLanguages(s.session);
  EXPECT_EQ(s.main.cmbSprache.Rows(), (Texts{"English",
                                             "Fran\xE7"
                                             "ais"}));
  s.main.cmbSprache.ChooseByHand(1);
  EXPECT_EQ(Entry(s, 0), "f");
  const std::string chosen =
      "Fran\xC3\xA7"
      "ais";
  EXPECT_EQ(s.settings.Get("Settings", "Language"), chosen);
  EXPECT_EQ(s.desktop.language, chosen);
}

TEST(Language, AFileOf222LinesFailsOnTheLastLine) {
  TestSession s;
  AddLanguage(s, "Eins", Numbered("a", 222));
  EXPECT_EQ(NumberThrownBy([&] { DiscoverLanguages(s.session); }), 9);
  EXPECT_EQ(Entry(s, 220), "a220");
  EXPECT_EQ(s.main.FrameSprache.Caption(), "E000");
  EXPECT_TRUE(s.settings.values.empty());
}

TEST(Language, AFileThatVanishedLeavesTheTableAndIsNotReported) {
  TestSession s;
  AddLanguage(s, "Eins", "e");
  AddLanguage(s, "Zwei", "z");
  DiscoverLanguages(s.session);
  s.files.contents.erase("/app/Zwei.lng");
  s.main.FrameSprache.SetCaption("spoilt");
  s.main.cmbSprache.ChooseByHand(1);
  EXPECT_EQ(s.main.FrameSprache.Caption(), "e");
  EXPECT_EQ(s.settings.Get("Settings", "Language"), "Zwei");
  EXPECT_EQ(s.desktop.language, "Eins");
  EXPECT_TRUE(s.desktop.shown.empty());
}

TEST(Language, AFileThatCannotBeReadIsCaughtByNothing) {
  TestSession s;
  AddLanguage(s, "Eins", "e");
  s.files.failingReads["/app/Eins.lng"] = FailureNumber::PermissionDenied;
  EXPECT_EQ(NumberThrownBy([&] { DiscoverLanguages(s.session); }), 70);
  EXPECT_TRUE(s.desktop.shown.empty());
}

TEST(Language, AClickLoadsThenStoresThenShowsTheVehicle) {
  TestSession s;
  AddLanguage(s, "Eins", Numbered("a", 182));
  AddLanguage(s, "Zwei", Numbered("b", 182));
  DiscoverLanguages(s.session);
  HoldCars(s, {TaggedCar("AXO", "x")});
  s.main.cmbAutos.Choose(0);
  Texts steps;
  s.main.FrameSprache.notice = [&](Aspect) {
    steps.push_back("captions, stored " + *s.settings.Get("Settings", "Language"));
  };
  s.main.picCar.notice = [&](Aspect) {
    steps.push_back("vehicle, stored " + *s.settings.Get("Settings", "Language"));
  };
  s.main.cmbSprache.ChooseByHand(1);
  EXPECT_EQ(steps, (Texts{"captions, stored Eins", "vehicle, stored Zwei"}));
}

TEST(Language, AClickSetsTheCaptionsOfTheVehicleAnew) {
  TestSession s;
  AddLanguage(s, "Eins", Numbered("a", 182));
  AddLanguage(s, "Zwei", Numbered("b", 182));
  DiscoverLanguages(s.session);
  Car boat = TaggedCar("AXO", "x");
  boat.LineKind = kPercentLine;
  HoldCars(s, {boat});
  s.main.cmbAutos.Choose(0);
  s.main.cmbSprache.ChooseByHand(1);
  EXPECT_EQ(s.main.txtBias.label.Caption(), "b177");
  EXPECT_EQ(s.main.txtBias.hint->Caption(), "");
  IdeEntry plane = TaggedIde("AXO", "x");
  plane.Typ = "plane";
  HoldIdes(s, {plane});
  s.main.cmbAutos.Choose(0);
  s.main.cmbSprache.ChooseByHand(0);
  EXPECT_EQ(s.main.txtExtra1.label.Caption(), "a151");
  EXPECT_EQ(s.main.lblExtra1Info.Caption(), "a147");
}

TEST(Language, AClickChangesNeitherTheFileNorTheTablesNorTheVehicle) {
  TestSession s;
  s.OpenHandling(CrLf({VehicleLineOf("AXO"), VehicleLineOf("BYL")}));
  s.main.cmbAutos.ChooseByHand(1);
  AddLanguage(s, "Eins", Numbered("a", 182));
  AddLanguage(s, "Zwei", Numbered("b", 182));
  DiscoverLanguages(s.session);
  const std::vector<Car> cars = RecordsOf(s.vars.Cars);
  s.files.written.clear();
  s.main.cmbSprache.ChooseByHand(1);
  EXPECT_EQ(RecordsOf(s.vars.Cars), cars);
  EXPECT_EQ(s.main.cmbAutos.Text(), "BYL");
  EXPECT_EQ(s.vars.CurrentCar, 1);
  EXPECT_TRUE(s.vars.IsSaved);
  EXPECT_TRUE(s.files.written.empty());
  EXPECT_EQ(s.main.cmbAntrieb.Rows(), (Texts{"b46", "b47", "b48"}));
  EXPECT_EQ(s.main.cmbAntrieb.Row(), 1);
}

TEST(Language, TheStoredLanguageServesTheNextStart) {
  TestSession s;
  AddLanguage(s, "Eins", "e");
  AddLanguage(s, "Zwei", "z");
  DiscoverLanguages(s.session);
  s.main.cmbSprache.ChooseByHand(1);
  TestSession next;
  next.files.contents = s.files.contents;
  next.settings.values = s.settings.values;
  DiscoverLanguages(next.session);
  EXPECT_EQ(next.main.cmbSprache.Text(), "Zwei");
}

TEST(Language, CaptionsAreReadAnewAtTheEndOfTheDiscovery) {
  TestSession s;
  AddLanguage(s, "Eins", "e");
  int times = 0;
  s.main.FrameSprache.notice = [&](Aspect) { ++times; };
  DiscoverLanguages(s.session);
  EXPECT_EQ(times, 2);
  EXPECT_EQ(s.main.FrameSprache.Caption(), "e");
}

}  // namespace
}  // namespace wheelwright::testing
