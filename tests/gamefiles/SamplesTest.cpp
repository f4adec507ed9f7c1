// The sample handling files: what a save changes in a real one, and what the list of load problems
// says about a bad one.
#include "core/DiskFiles.h"
#include "oracle/HandlingReference.h"
#include "oracle/PlainTexts.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<ReportList::Row>;

std::string Sample(const std::string& name) {
  return DiskFiles().Read(std::string(WHEELWRIGHT_SOURCE_DIR) + "/samples/" + name);
}

bool IsForeign(const std::string& line) {
  return line.substr(0, 14).find_first_of(";%$!") != std::string::npos;
}

// The sample as a save must leave it: a banner on top, the vehicles in one sorted block with single
// blanks, all other lines as they were, and an empty line behind the end. `vehicles` is the block.
std::string SavedSample(const std::string& sample, const std::string& vehicles) {
  std::string text =
      CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/"});
  bool blockStands = false;
  for (const std::string& line : PlainLines(sample)) {
    if (IsForeign(line)) text += line + "\r\n";
    if (!IsForeign(line) && !blockStands) text += vehicles;
    blockStands = blockStands || !IsForeign(line);
  }
  return text + "\r\n";
}

// The sample's vehicle lines as they would be written, sorted by name.
Texts SortedVehicleLines(const std::string& sample) {
  Texts lines;
  for (const std::string& line : PlainLines(sample)) {
    if (IsForeign(line)) continue;
    lines.push_back(PlainLines(VehicleLinesPlainly(ReadPlainly(line)))[0]);
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

std::string Block(const Texts& lines) {
  std::string block;
  for (const std::string& line : lines) block += line + "\r\n";
  return block;
}

TEST(SamplesTest, TheHandlingFileIsLoadedWithoutAProblem) {
  TestSession test;
  test.OpenHandling(Sample("handling.cfg"));
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal"}));
  EXPECT_EQ(test.error.lstErrors.Rows(), Rows{});
  EXPECT_FALSE(test.error.IsVisible());
  EXPECT_EQ(test.main.cmbAutos.Count(), 66);
  EXPECT_EQ(test.vars.Cars.Count(), 66);
  EXPECT_EQ(test.main.txtAuthor.Text(), "the Wheelwright contributors");
  EXPECT_EQ(test.main.txtDate.Text(), "14 March 2004");
  EXPECT_EQ(test.files.written, Texts{});
}

TEST(SamplesTest, ASaveOfTheHandlingFileChangesBannerBlockAndEndOnly) {
  const std::string sample = Sample("handling.cfg");
  TestSession test;
  test.OpenHandling(sample);
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.Disk(TestSession::kHandlingPath),
            SavedSample(sample, Block(SortedVehicleLines(sample))));
}

TEST(SamplesTest, AnEditedMassChangesOneLineOfTheBlock) {
  const std::string sample = Sample("handling.cfg");
  Texts lines = SortedVehicleLines(sample);
  const auto warden = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
    return line.starts_with("WARDEN ");
  });
  ASSERT_NE(warden, lines.end());
  ASSERT_EQ(warden->substr(0, 30), "WARDEN          1650.0 1.9 4.9");
  warden->replace(0, 22, "WARDEN         12345.67");
  TestSession test;
  test.OpenHandling(sample);
  const Texts& names = test.main.cmbAutos.Rows();
  test.main.cmbAutos.ChooseByHand(
      static_cast<int>(std::find(names.begin(), names.end(), "WARDEN") - names.begin()));
  test.main.txtGewicht.EditByHand("12345.67");
  test.main.cmdSave.ClickByHand();
  EXPECT_EQ(test.Disk(TestSession::kHandlingPath), SavedSample(sample, Block(lines)));
}

ReportList::Row Bad(const char* vehicle, const Label& label, const char* problem = "E105") {
  return {vehicle, label.Caption(), problem};
}

Rows ProblemsOfTokens(const FrmMain& m) {
  // clang-format off
  return {
      Bad("4711", m.lblAutoname, "E104"),
      Bad("BADBODY", m.lblGewicht), Bad("BADBODY", m.lblBreite), Bad("BADBODY", m.lblHoehe),
      Bad("BADBODY", m.lblLaenge), Bad("BADBODY", m.lblMassenmittelpX),
      Bad("BADBODY", m.lblMassenmittelpY), Bad("BADBODY", m.lblMassenmittelpZ),
      Bad("BADBODY", m.lblSubMerged),
      Bad("BADDRIVE", m.lblTractionMulti), Bad("BADDRIVE", m.lblTractionLoss),
      Bad("BADDRIVE", m.lblTractionBias), Bad("BADDRIVE", m.lblGaenge),
      Bad("BADDRIVE", m.lblGeschwindigkeit), Bad("BADDRIVE", m.lblBeschleunigung),
      Bad("BADENGINE", m.lblMotorTyp, "E104"),
      Bad("BADBRAKES", m.lblBremsstaerke), Bad("BADBRAKES", m.lblBrakeBias),
      Bad("BADBRAKES", m.lblABS), Bad("BADBRAKES", m.lblRadeinschlag),
      Bad("BADSPRINGS", m.lblKraftlevel), Bad("BADSPRINGS", m.lblDLevel),
      Bad("BADSPRINGS", m.lblOLimit), Bad("BADSPRINGS", m.lblULimit),
      Bad("BADSPRINGS", m.lblBias), {"BADSPRINGS", "", "E105"},
      Bad("BADREST", m.lblPedSeat), Bad("BADREST", m.lblKoll), Bad("BADREST", m.lblPreis),
      Bad("BADREST", m.lblFrontLichter), Bad("BADREST", m.lblRearLichter),
      Bad("ALMOST", m.lblBreite), Bad("ALMOST", m.lblPreis)};
  // clang-format on
}

TEST(SamplesTest, TheBadFileGivesEveryProblemThereIs) {
  TestSession test;
  test.OpenHandling(Sample("problems.cfg"));
  Rows expected = ProblemsOfTokens(test.main);
  expected.insert(expected.end(), {{"TOOSHORT", "", "E102: 31 E103"},
                                   {"VERYSHORT", "", "E102: 2 E103"},
                                   {"TOOLONG", "", "E102: 35 E103"},
                                   {"SHIFTED", "", "E102: 34 E103"},
                                   Bad("SHIFTED", test.main.lblBremsstaerke)});
  EXPECT_EQ(test.error.lstErrors.Rows(), expected);
  EXPECT_TRUE(test.error.IsVisible());
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal"}));
}

}  // namespace
}  // namespace wheelwright::testing
