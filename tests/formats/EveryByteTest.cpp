// Every byte that a format leaves to a field goes through that field unchanged, the zero byte
// included: from the file to the values and back to the file.
#include "formats/ColorFile.h"
#include "formats/DefinitionFile.h"
#include "formats/ExportFile.h"
#include "support/TableTexts.h"
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

// A vehicle of such texts, and its line as the program writes it.
Tokens TokensWith(char byte) {
  Tokens tokens;
  for (int number = 0; number < 33; ++number) tokens.push_back(TextWith(byte, number));
  return tokens;
}

std::string WrittenLine(Tokens tokens) {
  tokens[0].append(14 - tokens[0].size(), ' ');
  return Joined(tokens);
}

WrittenVehicles WrittenAgain(const HandlingFile& file) {
  return {file.names, file.cars, file.author, file.created};
}

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

constexpr std::string_view kHandlingsOwn = "\t\n\r ;%!$";

TEST(EveryByteTest, GoesThroughEveryFieldOfAHandlingFileAndOfAnExport) {
  for (const char byte : BytesBut(kHandlingsOwn)) {
    const Tokens tokens = TokensWith(byte);
    const std::string line = CrLf({WrittenLine(tokens)});
    HandlingFile file;
    ReadHandling(line, file);
    EXPECT_EQ(file.names, Texts{tokens[0]});
    EXPECT_EQ(TokensOf(file.cars), std::vector<Tokens>{tokens}) << static_cast<int>(byte);
    EXPECT_TRUE(Holds(WriteHandling(line, WrittenAgain(file)), "\r\n" + line));
    const std::string exported = WriteExport(WrittenAgain(file));
    EXPECT_TRUE(Holds(exported, "\r\n" + line + ";\r\n"));
    ReadExport(exported, file.names, file.cars, file.problems);
    EXPECT_EQ(TokensOf(file.cars), (std::vector<Tokens>{tokens, tokens})) << static_cast<int>(byte);
  }
}

TEST(EveryByteTest, GoesThroughAuthorAndDateAndStandsInACommentAsItWas) {
  for (const char byte : BytesBut("\n\r ")) {
    const std::string author = TextWith(byte, 1);
    const std::string date = TextWith(byte, 2);
    const std::string head = CrLf({"; Author: " + author, "; Created " + date, ";" + TextWith(byte, 3)});
    HandlingFile file;
    ReadHandling(head, file);
    EXPECT_EQ(file.author, author) << static_cast<int>(byte);
    EXPECT_EQ(file.created, date) << static_cast<int>(byte);
    EXPECT_TRUE(Holds(WriteHandling(head, WrittenAgain(file)), "\r\n" + head));
  }
}

TEST(EveryByteTest, GoesThroughEveryFieldOfADefinitionFile) {
  for (const char byte : BytesBut("\t\n\r ,#")) {
    std::string line;
    for (int number = 0; number < 13; ++number) line += TextWith(byte, number) + ",";
    const std::string text = CrLf({"cars", line, "end"});
    DefinitionFile file;
    ReadDefinitions(text, file);
    ASSERT_EQ(file.records.Count(), 1);
    EXPECT_EQ(file.names, Texts{TextWith(byte, 4)});
    IdeEntry& entry = file.records.At(0);
    entry.Typ = "car";
    int number = 0;
    for (const DefinitionValue& field : kDefinitionValues) {
      if (field.value != &IdeEntry::Typ) EXPECT_EQ(entry.*field.value, TextWith(byte, number));
      ++number;
    }
    EXPECT_TRUE(Holds(WriteDefinitions(text, file.records),
                      TextWith(byte, 11) + ", \t" + TextWith(byte, 12) + "\r\nend\r\n"));
  }
}

TEST(EveryByteTest, GoesThroughTheNamesOfAColourFile) {
  for (const char byte : BytesBut("\t\n\r ,#")) {
    const std::string color = TextWith(byte, 1);
    const std::string vehicle = TextWith(byte, 2);
    const std::string text =
        CrLf({"col", "1,2,3\t\t\t\t# 0 " + color, "end", "car", vehicle + ", 0, 0", "end"});
    PaletteSection palette;
    PairsSection pairs;
    ReadPalette(text, palette);
    ReadPairs(text, pairs);
    EXPECT_EQ(palette.colors.At(0).ColorName, color) << static_cast<int>(byte);
    EXPECT_EQ(pairs.names, Texts{vehicle});
    EXPECT_EQ(WritePairs(WritePalette(text, palette.colors), pairs.records), kBanner + text);
  }
}

}  // namespace
}  // namespace wheelwright::testing
