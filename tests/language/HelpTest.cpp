// The manual and the about message.
#include "language/Help.h"
#include "support/TestSession.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;

const std::string kAbout =
    "information: Wheelwright V1.0.0\r\n"
    "\r\n"
    "Written by the Wheelwright project\r\n"
    "Contact: https://wheelwright.example/contact\r\n"
    "Home page: https://wheelwright.example/\r\n"
    "\r\n"
    "Manual and corrections: the Wheelwright project\r\n"
    "Contact: https://wheelwright.example/manual";

TEST(Help, HandsTheManualToTheDesktopUnderTheHourglass) {
  TestSession s;
  s.files.contents["/app/Anleitung.htm"] = "manual";
  s.main.cmdHelp.ClickByHand();
  EXPECT_EQ(s.desktop.shown, (Shown{"hourglass", "shell: /app/Anleitung.htm", "normal"}));
}

TEST(Help, TheManualLiesDirectlyBesideTheProgram) {
  TestSession s;
  s.files.contents["/app/manual/Anleitung.htm"] = "manual";
  s.files.contents["/app/anleitung.htm"] = "manual";
  s.vars.AppPath = "/a b/";
  s.files.contents["/a b/Anleitung.htm"] = "manual";
  s.main.cmdHelp.ClickByHand();
  EXPECT_EQ(s.desktop.shown, (Shown{"hourglass", "shell: /a b/Anleitung.htm", "normal"}));
}

TEST(Help, AMissingManualShowsAnErrorAndChangesNoPointer) {
  TestSession s;
  s.main.cmdHelp.ClickByHand();
  EXPECT_EQ(s.desktop.shown, (Shown{"error: E121"}));
}

TEST(Help, TheMessageForAMissingManualFollowsTheLanguage) {
  TestSession s;
  s.vars.Lang[121] = "Kein Handbuch f\xFCr Sie";
  s.main.cmdHelp.ClickByHand();
  EXPECT_EQ(s.desktop.shown, (Shown{"error: Kein Handbuch f\xC3\xBCr Sie"}));
}

TEST(Help, TheAboutMessageHasEightLinesInOneBox) {
  TestSession s;
  s.main.cmdInfo.ClickByHand();
  EXPECT_EQ(s.desktop.shown, (Shown{kAbout}));
  EXPECT_EQ(std::count(kAbout.begin(), kAbout.end(), '\n'), 7);
}

TEST(Help, TheAboutMessageIsTheSameWithAnyFileAndInAnyLanguage) {
  TestSession s;
  s.OpenHandling(CrLf({VehicleLineOf("AXO")}));
  s.vars.Lang.fill("foreign");
  s.vars.IsSaved = false;
  s.desktop.shown.clear();
  s.main.cmdInfo.ClickByHand();
  EXPECT_EQ(s.desktop.shown, (Shown{kAbout}));
  EXPECT_FALSE(s.vars.IsSaved);
}

}  // namespace
}  // namespace wheelwright::testing
