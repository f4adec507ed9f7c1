#include "gamefiles/LineEnds.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

class LineEndsTest : public ::testing::Test {
 protected:
  void SetUp() override { test.vars.CurrentFile = kPath; }

  std::string Normalised(const std::string& text) {
    test.files.contents[kPath] = text;
    NormaliseLineEnds(test.session);
    return test.Disk(kPath);
  }

  int FailureOf(const std::string& text) {
    return NumberThrownBy([&] { Normalised(text); });
  }

  static constexpr const char* kPath = "/game/any.cfg";
  TestSession test;
};

TEST_F(LineEndsTest, AFileWithProperLineEndsIsntWritten) {
  for (const char* text : {"", "a", "a\r\nb\r\n", "a\rb\r", "\r\n\r\n", "\r"}) {
    EXPECT_EQ(Normalised(text), text);
  }
  EXPECT_EQ(test.files.written, std::vector<std::string>{});
}

TEST_F(LineEndsTest, BareLineFeedsBecomeLineEndsAndOneMoreFollows) {
  EXPECT_EQ(Normalised("a\nb\n"), "a\r\nb\r\n\r\n");
  EXPECT_EQ(Normalised("a\nb"), "a\r\nb\r\n");
  EXPECT_EQ(Normalised("\n"), "\r\n\r\n");
  EXPECT_EQ(test.files.written, (std::vector<std::string>{kPath, kPath, kPath}));
}

TEST_F(LineEndsTest, LinesThatEndedProperlyAreJoinedToTheirNeighbours) {
  EXPECT_EQ(Normalised("a\r\nb\nc\r\nd"), "ab\r\ncd\r\n");
}

TEST_F(LineEndsTest, LinesThatEndedInACarriageReturnAreJoinedToo) {
  EXPECT_EQ(Normalised("a\rb\nc"), "ab\r\nc\r\n");
}

TEST_F(LineEndsTest, OnlyTheFirstLineFeedBehindACarriageReturnBelongsToIt) {
  EXPECT_EQ(Normalised("a\r\n\nb"), "a\r\nb\r\n");
}

TEST_F(LineEndsTest, ALineFeedBeforeTheCarriageReturnIsBare) {
  EXPECT_EQ(Normalised("a\n\rb"), "a\r\nb\r\n");
}

TEST_F(LineEndsTest, ARewrittenFileStaysAsItIs) {
  const std::string once = Normalised("a\nb\r\nc\n");
  EXPECT_EQ(once, "a\r\nbc\r\n\r\n");
  EXPECT_EQ(Normalised(once), once);
}

TEST_F(LineEndsTest, AllOtherBytesComeThrough) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') text += static_cast<char>(byte);
  }
  EXPECT_EQ(Normalised(text + "\n" + text), text + "\r\n" + text + "\r\n");
}

TEST_F(LineEndsTest, AReadOnlyFileFailsOnlyIfItMustBeRewritten) {
  test.files.readOnly.insert(kPath);
  EXPECT_EQ(FailureOf("a\nb"), 75);
  EXPECT_EQ(test.Disk(kPath), "a\nb");
  EXPECT_EQ(Normalised("a\r\nb"), "a\r\nb");
}

TEST_F(LineEndsTest, AFileThatCantBeReadFails) {
  test.files.failingReads[kPath] = FailureNumber::DeviceIoError;
  EXPECT_EQ(FailureOf("a\nb"), 57);
}

}  // namespace
}  // namespace wheelwright::testing
