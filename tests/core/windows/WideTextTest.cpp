#include "core/windows/WideText.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

TEST(WindowsTextTest, EveryCharacterSurvivesBothWays) {
  EXPECT_EQ(WideOf("Grüße 日本 \xF0\x9F\x9A\x97"), L"Gr\u00FC\u00DFe \u65E5\u672C \xD83D\xDE97");
  EXPECT_EQ(Utf8Of(L"Gr\u00FC\u00DFe \u65E5\u672C \xD83D\xDE97"), "Grüße 日本 \xF0\x9F\x9A\x97");
}

TEST(WindowsTextTest, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(WideOf(""), L"");
  EXPECT_EQ(Utf8Of(L""), "");
}

TEST(WindowsTextTest, WhatIsNoUnicodeIsReplaced) {
  EXPECT_EQ(WideOf("a\xFFz"), L"a\uFFFDz");
  EXPECT_EQ(Utf8Of(std::wstring_view(L"a\xD83Dz", 3)), "a\xEF\xBF\xBDz");
}

}  // namespace
}  // namespace wheelwright::testing
