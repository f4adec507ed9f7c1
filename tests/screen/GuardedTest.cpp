#include "screen/Session.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;

void FailWith(FailureNumber number) { throw Failure(number); }

TEST(GuardedTest, StepsThatSucceedShowNothing) {
  TestSession test;
  bool ended = false;
  Guarded(
      test.session, [&] { test.vars.CurrentCar = 7; }, [&] { ended = true; });
  EXPECT_EQ(test.vars.CurrentCar, 7);
  EXPECT_FALSE(ended);
  EXPECT_EQ(test.desktop.shown, Shown{});
}

TEST(GuardedTest, AFailureShowsItsMessageInAnErrorBox) {
  TestSession test;
  Guarded(test.session, [] { FailWith(FailureNumber::DiskFull); });
  EXPECT_EQ(test.desktop.shown, Shown{"error: Error: 61 - Disk full"});
}

TEST(GuardedTest, WhatTheStepsDidBeforeTheFailureStaysDone) {
  TestSession test;
  Guarded(test.session, [&] {
    test.vars.CurrentCar = 7;
    FailWith(FailureNumber::Overflow);
  });
  EXPECT_EQ(test.vars.CurrentCar, 7);
}

TEST(GuardedTest, WhatMustHappenAtOnceComesBeforeTheMessage) {
  TestSession test;
  Guarded(
      test.session, [] { FailWith(FailureNumber::Overflow); },
      [&] { test.desktop.shown.emplace_back("at once"); });
  EXPECT_EQ(test.desktop.shown, (Shown{"at once", "error: Error: 6 - Overflow"}));
}

TEST(GuardedTest, ACancelledDialogEndsWithoutAWord) {
  TestSession test;
  Guarded(
      test.session, [] { FailWith(FailureNumber::CancelSelected); },
      [&] { test.desktop.shown.emplace_back("at once"); });
  EXPECT_EQ(test.desktop.shown, Shown{"at once"});
}

TEST(GuardedTest, ALackOfMemoryIsAFailureLikeAnyOther) {
  TestSession test;
  Guarded(test.session, [] { throw std::bad_alloc(); });
  EXPECT_EQ(test.desktop.shown, Shown{"error: Error: 7 - Out of memory"});
}

TEST(GuardedTest, AForeignExceptionIsThrownOn) {
  TestSession test;
  EXPECT_THROW(Guarded(test.session, [] { throw std::runtime_error("foreign"); }), std::runtime_error);
  EXPECT_EQ(test.desktop.shown, Shown{});
}

TEST(GuardedTest, AMessageIsAnEntryOfTheLanguageTableInUnicode) {
  TestSession test;
  test.vars.Lang[12] =
      "Datei nicht ge\xF6"
      "ffnet";
  EXPECT_EQ(Message(test.session, kFileIsMissing), "Datei nicht geöffnet");
}

}  // namespace
}  // namespace wheelwright::testing
