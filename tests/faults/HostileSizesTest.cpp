// Files of a hostile size end in their defined way. Those that take long or much memory are played
// by tools/hostile, which also holds them to what they may take.
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

constexpr const char* kOverflow = "error: Error: 6 - Overflow";
constexpr std::size_t kLong = 4000000;

std::string Repeated(const std::string& piece, std::size_t times) {
  std::string text;
  text.reserve(piece.size() * times);
  for (std::size_t i = 0; i < times; ++i) text += piece;
  return text;
}

std::string ColorsWith(int colors, std::size_t pairs) {
  return "col\r\n" + Repeated("1,2,3\t\t\t\t# 0 c\r\n", static_cast<std::size_t>(colors)) +
         "end\r\ncar\r\nbus" + Repeated(", 0, 0", pairs) + "\r\nend\r\n";
}

class HostileSizesTest : public ::testing::Test {
 protected:
  void ExpectReset(const char* error) {
    EXPECT_EQ(test.LastShown(), error);
    EXPECT_EQ(test.vars.CurrentFile, "");
    EXPECT_EQ(test.main.cmbAutos.Count(), 0);
    EXPECT_FALSE(test.main.cmdSave.IsEnabled());
  }

  TestSession test;
};

TEST_F(HostileSizesTest, NamesThatBeginOneAnotherOverflowTheRecordsAndNotTheIndex) {
  std::string text;
  for (int length = 1; length <= 14; ++length) {
    for (int word = 0; word < 1 << length; ++word) {
      std::string name;
      for (int letter = 0; letter < length; ++letter) name += (word >> letter & 1) != 0 ? 'A' : 'B';
      text += VehicleLineOf(name) + "\r\n";
    }
  }
  test.OpenHandling(text + VehicleLineOf("C") + "\r\n");
  ExpectReset(kOverflow);
  EXPECT_EQ(test.vars.Kopie_Cars.Count(), 32768);
}

TEST_F(HostileSizesTest, AVehicleLineOfTooManyTokensOverflows) {
  test.OpenHandling("BUS           " + Repeated(" 1", 32767) + "\r\n");
  ExpectReset(kOverflow);
}

TEST_F(HostileSizesTest, AVehicleLineOfAsManyTokensAsAreCountedIsAProblemOnly) {
  test.OpenHandling("BUS           " + Repeated(" 1", 32766) + "\r\n");
  EXPECT_EQ(test.LastShown(), "normal");
  ASSERT_FALSE(test.error.lstErrors.Rows().empty());
  EXPECT_EQ(test.error.lstErrors.Rows().front(), (ReportList::Row{"BUS", "", "E102: 32767 E103"}));
}

TEST_F(HostileSizesTest, AVeryLongTokenComesThrough) {
  Tokens tokens = GoodTokens("BUS           ");
  tokens[2] = std::string(kLong, '7');
  test.OpenHandling(Joined(tokens) + "\r\n");
  EXPECT_TRUE(test.main.txtBreite.Text() == tokens[2]);
  test.main.cmdSave.ClickByHand();
  EXPECT_NE(test.Disk(TestSession::kHandlingPath).find(" " + tokens[2] + " "), std::string::npos);
}

TEST_F(HostileSizesTest, AVeryLongCommentAndAVeryLongMarkedLineStay) {
  const std::string comment = "; " + Repeated("x", kLong);
  const std::string marked = "% " + Repeated("bus ", kLong / 4);
  test.OpenHandling(CrLf({VehicleLineOf("BUS"), comment, marked}));
  EXPECT_EQ(KindsOf(test.vars.Cars), std::vector<int>{1});
  test.main.cmdSave.ClickByHand();
  EXPECT_NE(test.Disk(TestSession::kHandlingPath).find(comment + "\r\n" + marked + "\r\n"),
            std::string::npos);
}

TEST_F(HostileSizesTest, ADefinitionOfTooManyFieldsOverflows) {
  test.OpenDefinition("cars\r\n1" + Repeated(",1", 32767) + "\r\nend\r\n");
  ExpectReset(kOverflow);
}

TEST_F(HostileSizesTest, ADefinitionOfAsManyFieldsAsAreCountedKeepsThirteen) {
  test.OpenDefinition("cars\r\n1" + Repeated(",1", 32766) + "\r\nend\r\n");
  EXPECT_EQ(TextsOf(test.vars.Ides), Texts{"1|1|1|1|1|1|1|1|1|1|1|1|1"});
}

TEST_F(HostileSizesTest, AVehicleWithAsManyPairsAsAreCountedShowsThemAll) {
  test.OpenColors(ColorsWith(1, 16383));
  EXPECT_EQ(test.LastShown(), "normal");
  EXPECT_EQ(test.main.lstCarColors.Count(), 16383);
}

// Vehicle lines are counted together with all lines in front of them.
TEST_F(HostileSizesTest, APaletteFillsTheLinesThatAreCounted) {
  test.OpenColors(ColorsWith(32762, 16000));
  EXPECT_EQ(test.LastShown(), "normal");
  EXPECT_EQ(test.main.lstColors.Count(), 32762);
  EXPECT_EQ(test.main.cmbColor2.Count(), 32762);
}

}  // namespace
}  // namespace wheelwright::testing
