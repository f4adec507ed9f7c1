// The files of samples/ on screen.
#include "core/DiskFiles.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

std::string Sample(const std::string& name) {
  return DiskFiles().Read(std::string(WHEELWRIGHT_SOURCE_DIR) + "/samples/" + name);
}

TEST(SamplesTest, EveryDefinitionIsShownByEntriesThatItsListsOffer) {
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

TEST(SamplesTest, EveryPairNamesColorsOfThePalette) {
  TestSession test;
  test.OpenColors(Sample("carcols.dat"));
  for (int row = 0; row < test.main.cmbAutos.Count(); ++row) test.main.cmbAutos.ChooseByHand(row);
  EXPECT_EQ(TextsOf(test.vars.CarColors), TextsOf(test.vars.Kopie_CarColors));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(SamplesTest, TheBadFileShowsItsProblems) {
  TestSession test;
  test.OpenHandling(Sample("problems.cfg"));
  EXPECT_EQ(test.error.lstErrors.Rows().size(), 38U);
  EXPECT_TRUE(test.error.IsVisible());
  EXPECT_EQ(test.desktop.shown, (Texts{"open", "hourglass", "normal"}));
}

}  // namespace
}  // namespace wheelwright::testing
