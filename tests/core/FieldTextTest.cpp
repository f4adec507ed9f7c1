#include "core/FieldText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <utility>

namespace wheelwright::testing {
namespace {

const std::string kLonger(100, 'x');
// Around the seven characters that have room in place, and with a zero among them.
const std::string kTexts[] = {"", "F", "123456", "1234567", "12345678", std::string("a\0b", 3), kLonger};

TEST(FieldText, TakesNoMoreRoomThanAnAddress) { EXPECT_EQ(sizeof(FieldText), 8U); }

TEST(FieldText, HoldsSevenCharactersInPlace) {
  const FieldText text = "1234567";
  const auto* const here = reinterpret_cast<const char*>(&text);
  EXPECT_EQ(text.View().data(), here);
}

TEST(FieldText, IsEmptyAtFirst) {
  EXPECT_TRUE(FieldText().empty());
  EXPECT_EQ(FieldText(), "");
}

TEST(FieldText, HoldsTextsOfAnyLength) {
  for (const std::string& text : kTexts) {
    const FieldText held = text;
    EXPECT_EQ(held.View(), text);
    EXPECT_EQ(held.size(), text.size());
    EXPECT_EQ(held.empty(), text.empty());
    EXPECT_EQ(std::string(held), text);
  }
}

TEST(FieldText, TakesTheTextOfEveryOtherOne) {
  for (const std::string& before : kTexts) {
    for (const std::string& after : kTexts) {
      FieldText text = before;
      text = after;
      EXPECT_EQ(text.View(), after);
      const FieldText& same = text;
      text = same;
      EXPECT_EQ(text.View(), after);
    }
  }
}

TEST(FieldText, ACopyIsATextOfItsOwn) {
  for (const std::string& model : kTexts) {
    const FieldText text = model;
    FieldText copy = text;
    copy = "other text";
    EXPECT_EQ(text.View(), model);
  }
}

TEST(FieldText, AMovedTextIsEmpty) {
  for (const std::string& model : kTexts) {
    FieldText text = model;
    const FieldText taken = std::move(text);
    EXPECT_EQ(taken.View(), model);
    EXPECT_TRUE(text.empty());  // NOLINT(bugprone-use-after-move)
  }
}

TEST(FieldText, IsEqualByteForByte) {
  EXPECT_EQ(FieldText("TAXI"), FieldText("TAXI"));
  EXPECT_EQ(FieldText(kLonger), FieldText(kLonger));
  EXPECT_NE(FieldText("TAXI"), FieldText("Taxi"));
  EXPECT_NE(FieldText("TAXI"), FieldText(std::string("TAXI\0", 5)));
  EXPECT_NE(FieldText(kLonger), "x");
}

TEST(FieldText, IsJoinedLikeAString) {
  EXPECT_EQ(FieldText("a") + "b", "ab");
  EXPECT_EQ("a" + FieldText("12345678"), "a12345678");
  EXPECT_EQ(FieldText("a") + FieldText("b"), "ab");
}

RC_GTEST_PROP(FieldText, GivesBackWhatItTook, (const std::string& text, const std::string& next)) {
  FieldText held = text;
  RC_ASSERT(held.View() == text);
  held = next;
  RC_ASSERT(held.View() == next);
}

}  // namespace
}  // namespace wheelwright::testing
