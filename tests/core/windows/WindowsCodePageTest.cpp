#include "core/CodePage.h"
#include "core/windows/WindowsCodePage.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

constexpr unsigned kWestern = 1252;
constexpr unsigned kCyrillic = 1251;
constexpr unsigned kTurkish = 1254;
constexpr unsigned kVietnamese = 1258;
constexpr unsigned kJapanese = 932;
constexpr unsigned kChinese = 936;
constexpr unsigned kKorean = 949;
constexpr unsigned kTaiwanese = 950;
constexpr unsigned kUtf8 = 65001;

char ByteOf(int number) { return static_cast<char>(number); }

TEST(WindowsCodePageTest, TheWesternOneIsThatOfTheOtherSystems) {
  const WindowsCodePage page(kWestern);
  for (int number = 0; number < 256; ++number) {
    const std::string byte(1, ByteOf(number));
    EXPECT_EQ(page.ToUnicode(byte), ToUnicode(byte)) << number;
    EXPECT_EQ(page.FromUnicode(ToUnicode(byte)), byte) << number;
  }
  EXPECT_EQ(page.LowerCaseTable(), codepage::kLowerCase);
}

TEST(WindowsCodePageTest, LettersOfTheUsersOwnPageAreRead) {
  const WindowsCodePage page(kCyrillic);
  EXPECT_EQ(page.ToUnicode("\xC0\xE2\xF2\xEE 1"), "Авто 1");
  EXPECT_EQ(page.FromUnicode("Авто 1"), "\xC0\xE2\xF2\xEE 1");
}

TEST(WindowsCodePageTest, ACharacterThatThePageLacksIsAQuestionMarkAndNoLookAlike) {
  const WindowsCodePage page(kCyrillic);
  EXPECT_EQ(page.FromUnicode("aäz"), "a?z");
  EXPECT_EQ(page.FromUnicode("日-\xF0\x9F\x9A\x97!"), "?-?!");
  EXPECT_EQ(page.FromUnicode("a\xFFz\xC3"), "a?z?");
}

TEST(WindowsCodePageTest, CharactersOfTwoBytesAreRead) {
  const WindowsCodePage page(kJapanese);
  EXPECT_EQ(page.ToUnicode("\x93\xFA\x96{ \xB1"), "日本 ｱ");
  EXPECT_EQ(page.FromUnicode("日本 ｱ"), "\x93\xFA\x96{ \xB1");
}

TEST(WindowsCodePageTest, AHalfOfACharacterIsShownInItsPlaceAndSurvives) {
  const WindowsCodePage page(kJapanese);
  EXPECT_EQ(page.ToUnicode("\x93"), "\xF3\xB0\x82\x93");
  EXPECT_EQ(page.FromUnicode("\xF3\xB0\x82\x93"), "\x93");
}

TEST(WindowsCodePageTest, Utf8IsReadAndWhatIsNoneSurvives) {
  const WindowsCodePage page(kUtf8);
  EXPECT_EQ(page.ToUnicode("ä日\xF0\x9F\x9A\x97"), "ä日\xF0\x9F\x9A\x97");
  EXPECT_EQ(page.FromUnicode("ä日\xF0\x9F\x9A\x97"), "ä日\xF0\x9F\x9A\x97");
  EXPECT_EQ(page.ToUnicode("a\xE4z"), "a\xF3\xB0\x83\xA4z");
  const std::string standIn = "\xF3\xB0\x83\xA4";
  EXPECT_EQ(page.FromUnicode(page.ToUnicode(standIn)), standIn);
}

TEST(WindowsCodePageTest, EveryPairOfBytesSurvivesInEveryPage) {
  for (const unsigned number :
       {kWestern, kCyrillic, kTurkish, kVietnamese, kJapanese, kChinese, kKorean, kTaiwanese, kUtf8}) {
    const WindowsCodePage page(number);
    std::string bytes;
    for (int first = 0; first < 256; ++first) {
      for (int second = 0; second < 256; ++second) {
        bytes += {ByteOf(first), ByteOf(second), '\n'};
      }
    }
    EXPECT_TRUE(page.FromUnicode(page.ToUnicode(bytes)) == bytes) << number;
  }
}

TEST(WindowsCodePageTest, CapitalLettersOfThePageFold) {
  const std::array<char, 256> lower = WindowsCodePage(kCyrillic).LowerCaseTable();
  EXPECT_EQ(lower['A'], 'a');
  EXPECT_EQ(lower[0xC0], '\xE0');
  EXPECT_EQ(lower[0xA8], '\xB8');
  EXPECT_EQ(lower[0xE0], '\xE0');
}

TEST(WindowsCodePageTest, HalvesOfCharactersDontFold) {
  const std::array<char, 256> lower = WindowsCodePage(kJapanese).LowerCaseTable();
  EXPECT_EQ(lower['Z'], 'z');
  for (std::size_t lead = 0x81; lead <= 0x9F; ++lead) EXPECT_EQ(lower[lead], static_cast<char>(lead));
}

}  // namespace
}  // namespace wheelwright::testing
