#include "formats/Lines.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

TEST(LineEndsTest, ATextWithProperLineEndsIsntRewritten) {
  for (const char* text : {"", "a", "a\r\nb\r\n", "a\rb\r", "\r\n\r\n", "\r"}) {
    EXPECT_EQ(WithoutBareLineFeeds(text), std::nullopt);
  }
}

TEST(LineEndsTest, BareLineFeedsBecomeLineEndsAndOneMoreFollows) {
  EXPECT_EQ(WithoutBareLineFeeds("a\nb\n"), "a\r\nb\r\n\r\n");
  EXPECT_EQ(WithoutBareLineFeeds("a\nb"), "a\r\nb\r\n");
  EXPECT_EQ(WithoutBareLineFeeds("\n"), "\r\n\r\n");
}

TEST(LineEndsTest, LinesThatEndedProperlyAreJoinedToTheirNeighbours) {
  EXPECT_EQ(WithoutBareLineFeeds("a\r\nb\nc\r\nd"), "ab\r\ncd\r\n");
  EXPECT_EQ(WithoutBareLineFeeds("a\rb\nc"), "ab\r\nc\r\n");
}

TEST(LineEndsTest, OnlyTheFirstLineFeedBehindACarriageReturnBelongsToIt) {
  EXPECT_EQ(WithoutBareLineFeeds("a\r\n\nb"), "a\r\nb\r\n");
  EXPECT_EQ(WithoutBareLineFeeds("a\n\rb"), "a\r\nb\r\n");
}

TEST(LineEndsTest, ARewrittenTextStaysAsItIs) {
  const std::string once = WithoutBareLineFeeds("a\nb\r\nc\n").value_or("");
  EXPECT_EQ(once, "a\r\nbc\r\n\r\n");
  EXPECT_EQ(WithoutBareLineFeeds(once), std::nullopt);
}

TEST(LineEndsTest, AllOtherBytesComeThrough) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') text += static_cast<char>(byte);
  }
  EXPECT_EQ(WithoutBareLineFeeds(text + "\n" + text), text + "\r\n" + text + "\r\n");
}

}  // namespace
}  // namespace wheelwright::testing
