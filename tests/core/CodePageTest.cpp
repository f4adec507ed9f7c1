#include "core/CodePage.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace wheelwright::testing {
namespace {

// The characters of the bytes 80 to 9F; a byte without one is the control character of its number.
constexpr std::array<const char*, 32> kFrom80 = {
    "€", "\xC2\x81", "‚",        "ƒ", "„",        "…",        "†", "‡",        "ˆ", "‰", "Š",
    "‹", "Œ",        "\xC2\x8D", "Ž", "\xC2\x8F", "\xC2\x90", "‘", "’",        "“", "”", "•",
    "–", "—",        "˜",        "™", "š",        "›",        "œ", "\xC2\x9D", "ž", "Ÿ"};

constexpr const char* kFromA0 =
    "\xC2\xA0¡¢£¤¥¦§¨©ª«¬\xC2\xAD®¯°±²³´µ¶·¸¹º»¼½¾¿"
    "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";

std::string Bytes(int first, int last) {
  std::string bytes;
  for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST(CodePageTest, TheBytesBelow80AreThemselves) {
  EXPECT_EQ(ToUnicode(Bytes(0x00, 0x7F)), Bytes(0x00, 0x7F));
  EXPECT_EQ(FromUnicode(Bytes(0x00, 0x7F)), Bytes(0x00, 0x7F));
}

TEST(CodePageTest, EachByteFrom80To9FHasItsCharacter) {
  for (int byte = 0x80; byte <= 0x9F; ++byte) {
    const std::string character = kFrom80[static_cast<std::size_t>(byte - 0x80)];
    EXPECT_EQ(ToUnicode(Bytes(byte, byte)), character) << byte;
    EXPECT_EQ(FromUnicode(character), Bytes(byte, byte)) << byte;
  }
}

TEST(CodePageTest, TheBytesFromA0AreTheCharactersOfTheirNumber) {
  EXPECT_EQ(ToUnicode(Bytes(0xA0, 0xFF)), kFromA0);
  EXPECT_EQ(FromUnicode(kFromA0), Bytes(0xA0, 0xFF));
}

TEST(CodePageTest, TheFiveBytesWithoutCharacterSurviveBothWays) {
  EXPECT_EQ(ToUnicode("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
  EXPECT_EQ(FromUnicode("\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePageTest, ACharacterThatTheCodePageLacksBecomesOneQuestionMark) {
  EXPECT_EQ(FromUnicode("aΩz"), "a?z");
  EXPECT_EQ(FromUnicode("āǅ日本"), "????");
  EXPECT_EQ(FromUnicode("\xF0\x9F\x9A\x97!"), "?!");
  EXPECT_EQ(FromUnicode("\xEF\xBB\xBF"), "?");
}

TEST(CodePageTest, AControlCharacterWhoseByteHasAnotherCharacterIsLacking) {
  EXPECT_EQ(FromUnicode("\xC2\x80\xC2\x9F"), "??");
}

using Case = std::pair<std::string, std::string>;

TEST(CodePageTest, EachByteThatIsNoUtf8BecomesAQuestionMark) {
  const std::array<Case, 15> cases = {{
      {"a\x80z", "a?z"},             // nothing to continue
      {"\xBF", "?"},                 //
      {"\xC3", "?"},                 // cut short
      {"\xC3(", "?("},               //
      {"\xE2\x82", "??"},            //
      {"\xE2\x82z", "??z"},          //
      {"\xF0\x9F\x9A", "???"},       //
      {"\xC0\xAF", "??"},            // longer than needed
      {"\xC1\x81", "??"},            //
      {"\xE0\x81\x81", "???"},       //
      {"\xF0\x80\x81\x81", "????"},  //
      {"\xED\xA0\x80", "???"},       // half of a pair
      {"\xF4\x90\x80\x80", "????"},  // behind the last character
      {"\xF5\x80\x80\x80", "????"},  //
      {"\xFE\xFF", "??"},            //
  }};
  for (const auto& [utf8, bytes] : cases) EXPECT_EQ(FromUnicode(utf8), bytes);
}

TEST(CodePageTest, ReadingGoesOnBehindAByteThatIsNoUtf8) {
  EXPECT_EQ(FromUnicode("\xC3ä\xE2\x82€"), "?\xE4??\x80");
}

TEST(CodePageTest, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(ToUnicode(""), "");
  EXPECT_EQ(FromUnicode(""), "");
}

TEST(CodePageTest, EveryCapitalLetterFoldsToItsSmallOneAndNothingElseFolds) {
  const std::string capitals = FromUnicode("ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŠŒŽŸ");
  const std::string smallOnes = FromUnicode("abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþšœžÿ");
  ASSERT_EQ(capitals.size(), smallOnes.size());
  for (int byte = 0; byte < 256; ++byte) {
    const char letter = static_cast<char>(byte);
    const std::size_t place = capitals.find(letter);
    const char folded = place == std::string::npos ? letter : smallOnes[place];
    EXPECT_EQ(FoldCase(letter), folded) << byte;
  }
}

}  // namespace
}  // namespace wheelwright::testing
