#include "core/Utf8.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace wheelwright::testing {
namespace {

const std::vector<std::pair<char32_t, std::string>> kForms = {
    {0x00, std::string(1, '\0')},
    {0x7F, "\x7F"},
    {0x80, "\xC2\x80"},
    {0x7FF, "\xDF\xBF"},
    {0x800, "\xE0\xA0\x80"},
    {0xFFFF, "\xEF\xBF\xBF"},
    {0x10000, "\xF0\x90\x80\x80"},
    {0x10FFFF, "\xF4\x8F\xBF\xBF"},
};

TEST(Utf8Test, TheFirstAndTheLastCharacterOfEachLengthAreWritten) {
  for (const auto& [character, form] : kForms) {
    std::string text = "a";
    AppendUtf8(text, character);
    EXPECT_EQ(text, "a" + form);
  }
}

TEST(Utf8Test, TheFirstAndTheLastCharacterOfEachLengthAreTaken) {
  for (const auto& [character, form] : kForms) {
    const std::string text = form + "z";
    std::string_view rest = text;
    EXPECT_EQ(TakeCharacter(rest), character);
    EXPECT_EQ(rest, "z");
  }
}

TEST(Utf8Test, AByteThatBeginsNoCharacterIsTakenAlone) {
  std::string_view rest = "\xE2\x82z";
  EXPECT_EQ(TakeCharacter(rest), kNoCharacter);
  EXPECT_EQ(rest, "\x82z");
  const std::string euro = "\xE2\x82\xAC";
  std::string_view cutOff(euro.data(), 2);
  EXPECT_EQ(TakeCharacter(cutOff), kNoCharacter);
  EXPECT_EQ(cutOff, "\x82");
}

}  // namespace
}  // namespace wheelwright::testing
