// The definition and colour files of samples/.
#include "core/DiskFiles.h"
#include "oracle/PlainTexts.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace wheelwright::testing {
namespace {

const Texts kLoaded = {"open", "hourglass", "normal"};

std::string Sample(const std::string& name) {
  return DiskFiles().Read(std::string(WHEELWRIGHT_SOURCE_DIR) + "/samples/" + name);
}

std::set<std::string> ValuesOf(const Table<IdeEntry>& ides, std::string IdeEntry::*field) {
  std::set<std::string> values;
  for (const IdeEntry& ide : ides.Walk()) values.insert(ide.*field);
  return values;
}

std::string Saved(TestSession& test, const std::string& path) {
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.LastShown(), "information: E116");
  return test.Disk(path);
}

// The lines with a comment; reader and writer leave them where they are.
Texts Comments(const std::string& text) {
  Texts lines;
  for (const std::string& line : PlainLines(text)) {
    if (line.find('#') != std::string::npos) lines.push_back(line);
  }
  return lines;
}

TEST(DefinitionSample, HasEveryTypeEveryWheelAndLinesOfElevenToThirteenFields) {
  TestSession test;
  test.OpenDefinition(Sample("default.ide"));
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_EQ(test.main.cmbAutos.Count(), 66);
  const Table<IdeEntry>& ides = test.vars.Ides;
  EXPECT_EQ(ValuesOf(ides, &IdeEntry::Typ),
            (std::set<std::string>{"bike", "boat", "car", "heli", "plane"}));
  EXPECT_EQ(ValuesOf(ides, &IdeEntry::Extra1),
            (std::set<std::string>{"", "-1", "237", "238", "239", "250", "251", "252", "253", "254",
                                   "255", "256", "257"}));
  EXPECT_EQ(ValuesOf(ides, &IdeEntry::Extra2),
            (std::set<std::string>{"", "0.5", "0.7", "0.75", "0.8", "0.9", "1.1"}));
}

TEST(DefinitionSample, EveryVehicleIsShownByEntriesThatItsListsOffer) {
  TestSession test;
  test.OpenDefinition(Sample("default.ide"));
  for (int row = 0; row < test.main.cmbAutos.Count(); ++row) {
    test.main.cmbAutos.ChooseByHand(row);
    EXPECT_EQ(test.main.txtHandlingID.Text(), test.main.cmbAutos.Text());
    EXPECT_EQ(test.main.cmbTyp.Count(), 5);
    EXPECT_EQ(test.main.cmbAnim.Count(), 7);
    EXPECT_EQ(test.main.cmbKlasse.Count(), 12);
    EXPECT_EQ(test.main.cmbExtra1.Count(), 10);
  }
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(DefinitionSample, ASaveKeepsTheVehiclesAndEveryComment) {
  const std::string sample = Sample("default.ide");
  TestSession test;
  test.OpenDefinition(sample);
  const Texts vehicles = TextsOf(test.vars.Ides);
  const std::string saved = Saved(test, TestSession::kDefinitionPath);
  EXPECT_EQ(Comments(saved), Comments(kBanner + sample));
  test.OpenDefinition(saved);
  EXPECT_EQ(TextsOf(test.vars.Ides), vehicles);
  EXPECT_EQ(Saved(test, TestSession::kDefinitionPath), saved + "\r\n");
}

TEST(DefinitionSample, ASaveKeepsAllThatLiesAroundTheVehicles) {
  const std::string sample = Sample("default.ide");
  TestSession test;
  test.OpenDefinition(sample);
  const std::string saved = Saved(test, TestSession::kDefinitionPath);
  const std::string opening = "\r\ncars\r\n";
  const std::string before = sample.substr(0, sample.find(opening) + opening.size());
  const std::string behind = sample.substr(sample.find("\r\nend\r\n\r\n# People"));
  EXPECT_EQ(saved.substr(0, std::string(kBanner + before).size()), kBanner + before);
  EXPECT_EQ(saved.substr(saved.size() - behind.size() - 2), behind + "\r\n");
}

TEST(ColorSample, HasNinetyColorsAndOneToEightPairsForEachVehicle) {
  TestSession test;
  test.OpenColors(Sample("carcols.dat"));
  EXPECT_EQ(test.desktop.shown, kLoaded);
  EXPECT_EQ(test.vars.Colors.Count(), 90);
  EXPECT_EQ(TextOf(test.vars.Colors.At(89)), "89: 230,220,204 linen");
  EXPECT_EQ(test.main.cmbAutos.Count(), 66);
  std::set<std::size_t> pairs;
  for (const CarColorEntry& entry : test.vars.CarColors.Walk()) pairs.insert(entry.Color1.size());
  EXPECT_EQ(pairs, (std::set<std::size_t>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(ColorSample, EveryPairNamesColorsOfThePalette) {
  TestSession test;
  test.OpenColors(Sample("carcols.dat"));
  for (int row = 0; row < test.main.cmbAutos.Count(); ++row) test.main.cmbAutos.ChooseByHand(row);
  EXPECT_EQ(TextsOf(test.vars.CarColors), TextsOf(test.vars.Kopie_CarColors));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(ColorSample, BelongsToTheSameVehiclesAsTheDefinitions) {
  TestSession definitions;
  definitions.OpenDefinition(Sample("default.ide"));
  TestSession colors;
  colors.OpenColors(Sample("carcols.dat"));
  std::set<std::string> models;
  for (const CarColorEntry& entry : colors.vars.CarColors.Walk()) models.insert(entry.ModelName);
  EXPECT_EQ(models, ValuesOf(definitions.vars.Ides, &IdeEntry::ModelName));
}

TEST(ColorSample, ASaveCutsTheNamesAndLosesNothingElse) {
  TestSession test;
  test.OpenColors(Sample("carcols.dat"));
  const Texts colors = TextsOf(test.vars.Colors);
  const Texts vehicles = TextsOf(test.vars.CarColors);
  const std::string saved = Saved(test, TestSession::kColorPath);
  test.OpenColors(saved);
  EXPECT_EQ(TextsOf(test.vars.Colors), colors);
  EXPECT_EQ(TextsOf(test.vars.CarColors), vehicles);
  EXPECT_EQ(Saved(test, TestSession::kColorPath), saved + "\r\n\r\n");
}

}  // namespace
}  // namespace wheelwright::testing
