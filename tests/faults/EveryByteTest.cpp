// Every byte that a format leaves to a field goes through that field unchanged, the zero byte
// included: from the file to the table and the screen, and back to the file.
#include "support/Exchange.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

// All bytes but those of which the format makes something else.
std::vector<char> BytesBut(std::string_view own) {
  std::vector<char> bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (own.find(static_cast<char>(byte)) == std::string_view::npos) {
      bytes.push_back(static_cast<char>(byte));
    }
  }
  return bytes;
}

// A text of the field's number that holds the byte first, in the middle and last; so long that it
// is padded by no writer but the name's.
std::string TextWith(char byte, int number) {
  const std::string one(1, byte);
  return one + std::to_string(number) + one + "xyz" + one;
}

Tokens TokensWith(char byte) {
  Tokens tokens;
  for (int number = 0; number < 33; ++number) tokens.push_back(TextWith(byte, number));
  return tokens;
}

// The line as the program writes it.
std::string WrittenLine(Tokens tokens) {
  tokens[0].append(14 - tokens[0].size(), ' ');
  return Joined(tokens);
}

bool Holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

constexpr std::string_view kHandlingsOwn = "\t\n\r ;%!$";

TEST(EveryByteTest, GoesThroughEveryFieldOfAHandlingFile) {
  for (const char byte : BytesBut(kHandlingsOwn)) {
    const Tokens tokens = TokensWith(byte);
    TestSession test;
    test.OpenHandling(CrLf({WrittenLine(tokens)}));
    EXPECT_EQ(TokensOf(test.vars.Kopie_Cars), std::vector<Tokens>{tokens});
    EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{tokens[0]});
    EXPECT_EQ(test.main.txtGewicht.Text(), tokens[1]);
    EXPECT_EQ(test.main.txtPreis.Text(), tokens[25]);
    EXPECT_EQ(TokensOf(test.vars.Cars).front(), tokens) << static_cast<int>(byte);
    test.main.cmdSave.ClickByHand();
    EXPECT_TRUE(Holds(test.Disk(TestSession::kHandlingPath), "\r\n" + WrittenLine(tokens) + "\r\n"))
        << static_cast<int>(byte);
  }
}

TEST(EveryByteTest, GoesThroughExportAndImport) {
  for (const char byte : BytesBut(kHandlingsOwn)) {
    const Tokens tokens = TokensWith(byte);
    TestSession test;
    test.OpenHandling(CrLf({WrittenLine(tokens)}));
    ChooseAllForExport(test);
    const std::string exported = ExportChosen(test);
    EXPECT_TRUE(Holds(exported, "\r\n" + WrittenLine(tokens) + "\r\n;\r\n"));
    Import(test, exported);
    EXPECT_EQ(TokensOf(test.vars.Cars), (std::vector<Tokens>{tokens, tokens}))
        << static_cast<int>(byte);
  }
}

TEST(EveryByteTest, GoesThroughAuthorAndDate) {
  for (const char byte : BytesBut("\n\r ")) {
    const std::string author = TextWith(byte, 1);
    const std::string date = TextWith(byte, 2);
    TestSession test;
    test.OpenHandling(CrLf({"; Author: " + author, "; Created " + date, VehicleLineOf("BUS")}));
    EXPECT_EQ(test.main.txtAuthor.Text(), author) << static_cast<int>(byte);
    EXPECT_EQ(test.main.txtDate.Text(), date) << static_cast<int>(byte);
    test.main.cmdSave.ClickByHand();
    EXPECT_TRUE(Holds(test.Disk(TestSession::kHandlingPath),
                      "\r\n; Author: " + author + "\r\n; Created " + date + "\r\n"));
  }
}

TEST(EveryByteTest, GoesThroughEveryFieldOfADefinitionFile) {
  constexpr int kFields = 11;
  for (const char byte : BytesBut("\t\n\r ,#")) {
    std::string line;
    for (int number = 0; number < kFields; ++number) line += TextWith(byte, number) + ",";
    TestSession test;
    test.OpenDefinition(CrLf({"cars", line + "e,f", "end"}));
    ASSERT_EQ(test.vars.Ides.Count(), 1);
    const IdeEntry& entry = std::as_const(test.vars.Ides).At(0);
    EXPECT_EQ(entry.ID, TextWith(byte, 0));
    EXPECT_EQ(entry.CompRules, TextWith(byte, 10));
    EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{TextWith(byte, 4)});
    EXPECT_EQ(test.main.txtGameName.Text(), TextWith(byte, 5));
    test.main.cmdSave.ClickByHand();
    EXPECT_TRUE(Holds(test.Disk(TestSession::kDefinitionPath),
                      TextWith(byte, 9) + ", \t" + TextWith(byte, 10) + ", \t\r\nend\r\n"))
        << static_cast<int>(byte);
  }
}

TEST(EveryByteTest, GoesThroughTheNamesOfAColourFile) {
  for (const char byte : BytesBut("\t\n\r ,#")) {
    const std::string color = TextWith(byte, 1);
    const std::string vehicle = TextWith(byte, 2);
    TestSession test;
    test.OpenColors(
        CrLf({"col", "1,2,3\t\t\t\t# 0 " + color, "end", "car", vehicle + ", 0, 0", "end"}));
    EXPECT_EQ(test.main.lstColors.Rows(), Texts{color + " - 1,2,3"});
    EXPECT_EQ(test.main.cmbAutos.Rows(), Texts{vehicle});
    EXPECT_EQ(test.main.lstCarColors.Rows(), Texts{color + " - " + color});
    test.main.cmdSave.ClickByHand();
    EXPECT_EQ(test.Disk(TestSession::kColorPath),
              kBanner + CrLf({"col", "1,2,3\t\t\t\t# 0 " + color, "end", "car", vehicle + ", 0, 0",
                              "end", "", ""}))
        << static_cast<int>(byte);
  }
}

TEST(EveryByteTest, StandsInACommentAsItWas) {
  for (const char byte : BytesBut("\n\r")) {
    const std::string comment = ";" + TextWith(byte, 1);
    TestSession test;
    test.OpenHandling(CrLf({comment, VehicleLineOf("BUS")}));
    test.main.cmdSave.ClickByHand();
    EXPECT_TRUE(Holds(test.Disk(TestSession::kHandlingPath), "\r\n" + comment + "\r\n"))
        << static_cast<int>(byte);
  }
}

}  // namespace
}  // namespace wheelwright::testing
