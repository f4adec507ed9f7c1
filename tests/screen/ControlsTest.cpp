#include "screen/Controls.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

class ControlsTest : public ::testing::Test {
 protected:
  // Counts the runs of a handler and writes down the notices.
  template <class Handler>
  void Count(Handler& handler) {
    handler = [this] { ++runs; };
  }
  void Watch(Control& control) {
    control.notice = [this](Aspect aspect) { notices.push_back(aspect); };
  }

  Window window{"frmTest", "Test"};
  int runs = 0;
  std::vector<Aspect> notices;
};

TEST_F(ControlsTest, AWindowHasItsControlsInTheOrderOfTheirDeclaration) {
  Label label(window, "lblA");
  Button button(window, "cmdB");
  EXPECT_EQ(window.Controls(), (std::vector<Control*>{&label, &button}));
  EXPECT_EQ(window.Find("cmdB"), &button);
  EXPECT_EQ(window.Find("cmdC"), nullptr);
  EXPECT_EQ(&label.Owner(), &window);
}

TEST_F(ControlsTest, AWindowTellsOfItsTitleAndItsVisibility) {
  Count(window.notice);
  EXPECT_EQ(window.Name(), "frmTest");
  EXPECT_FALSE(window.IsVisible());
  window.SetTitle("Other");
  window.SetVisible(true);
  EXPECT_EQ(window.Title(), "Other");
  EXPECT_TRUE(window.IsVisible());
  EXPECT_EQ(runs, 2);
}

TEST_F(ControlsTest, AControlStartsEnabledAndVisible) {
  const Label label(window, "lblA");
  EXPECT_TRUE(label.IsEnabled());
  EXPECT_TRUE(label.IsVisible());
  EXPECT_EQ(label.Container(), nullptr);
}

TEST_F(ControlsTest, TheFramesAroundAControlCountForItsStateHere) {
  TabGroup tabs(window, "SSTab", {});
  Frame frame(window, "frame");
  TextBox box(window, "txtA");
  frame.PutInto(tabs, 2);
  box.PutInto(frame);
  EXPECT_TRUE(box.IsEnabledHere() && box.IsVisibleHere());
  tabs.SetEnabled(false);
  EXPECT_TRUE(box.IsEnabled());
  EXPECT_FALSE(box.IsEnabledHere());
  tabs.SetVisible(false);
  EXPECT_TRUE(box.IsVisible());
  EXPECT_FALSE(box.IsVisibleHere());
  EXPECT_EQ(frame.Page(), 2);
  EXPECT_EQ(box.Container(), &frame);
}

TEST_F(ControlsTest, AControlsOwnStateCountsToo) {
  Label label(window, "lblA");
  Watch(label);
  label.SetEnabled(false);
  label.SetVisible(false);
  EXPECT_FALSE(label.IsEnabledHere());
  EXPECT_FALSE(label.IsVisibleHere());
  EXPECT_EQ(notices, (std::vector<Aspect>{Aspect::State, Aspect::State}));
}

TEST_F(ControlsTest, ACaptionIsKeptAsItWasSet) {
  Label label(window, "lblA");
  Watch(label);
  label.SetCaption("&Save && go");
  EXPECT_EQ(label.Caption(), "&Save && go");
  EXPECT_EQ(notices, std::vector<Aspect>{Aspect::Content});
}

TEST_F(ControlsTest, AButtonRunsItsHandlerAtEachClick) {
  Button button(window, "cmdA");
  button.ClickByHand();
  Count(button.clicked);
  button.ClickByHand();
  button.ClickByHand();
  EXPECT_EQ(runs, 2);
}

TEST_F(ControlsTest, ATextBoxRunsItsHandlerWhenItsTextReallyChanges) {
  TextBox box(window, "txtA");
  Count(box.changed);
  box.SetText("");
  EXPECT_EQ(runs, 0);
  box.SetText("1.0");
  box.SetText("1.0");
  EXPECT_EQ(runs, 1);
  box.SetText("1.00");
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(box.Text(), "1.00");
}

TEST_F(ControlsTest, ATextBoxesHandlerSeesTheNewText) {
  TextBox box(window, "txtA");
  std::string seen;
  box.changed = [&] { seen = box.Text(); };
  box.SetText("new");
  EXPECT_EQ(seen, "new");
}

TEST_F(ControlsTest, TypingRunsTheHandlerLikeTheProgramDoes) {
  TextBox box(window, "txtA");
  Count(box.changed);
  box.EditByHand("abc");
  box.EditByHand("abc");
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(runs, 1);
}

TEST_F(ControlsTest, ATextBoxWithoutLimitTakesAnyLength) {
  TextBox box(window, "txtA");
  box.EditByHand(std::string(100000, 'x'));
  EXPECT_EQ(box.Text().size(), 100000U);
  EXPECT_EQ(box.LongestByHand(), std::string::npos);
}

TEST_F(ControlsTest, ALimitRefusesTheKeystrokeBeyondIt) {
  TextBox box(window, "txtA");
  box.LimitTyping(14);
  Count(box.changed);
  box.EditByHand("ABCDEFGHIJKLMN");
  EXPECT_EQ(box.Text(), "ABCDEFGHIJKLMN");
  box.EditByHand("ABCDEFGHIJKLMNO");
  EXPECT_EQ(box.Text(), "ABCDEFGHIJKLMN");
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(box.LongestByHand(), 14U);
}

TEST_F(ControlsTest, ALimitDoesNotBindTheProgram) {
  TextBox box(window, "txtA");
  box.LimitTyping(14);
  box.SetText("ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(box.Text(), "ABCDEFGHIJKLMNOPQRST");
}

TEST_F(ControlsTest, ATextBeyondTheLimitMayChangeAndShrinkButNotGrow) {
  TextBox box(window, "txtA");
  box.LimitTyping(14);
  box.SetText("ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(box.LongestByHand(), 20U);
  box.EditByHand("XBCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(box.Text(), "XBCDEFGHIJKLMNOPQRST");
  box.EditByHand("XBCDEFGHIJKLMNOPQRSTU");
  EXPECT_EQ(box.Text(), "XBCDEFGHIJKLMNOPQRST");
  box.EditByHand("XBCDEFGHIJKLMNOPQRS");
  EXPECT_EQ(box.Text(), "XBCDEFGHIJKLMNOPQRS");
  box.EditByHand("XBCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(box.Text(), "XBCDEFGHIJKLMNOPQRS");
}

TEST_F(ControlsTest, ACheckBoxRunsItsHandlerWhenItsStateReallyChanges) {
  CheckBox box(window, "chkA");
  Count(box.clicked);
  box.SetState(0);
  EXPECT_EQ(runs, 0);
  box.SetState(1);
  box.SetState(1);
  EXPECT_EQ(runs, 1);
  box.SetState(2);
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(box.State(), 2);
}

TEST_F(ControlsTest, AClickTicksAnEmptyBoxAndEmptiesEveryOther) {
  CheckBox box(window, "chkA");
  Count(box.clicked);
  box.ClickByHand();
  EXPECT_EQ(box.State(), 1);
  box.ClickByHand();
  EXPECT_EQ(box.State(), 0);
  EXPECT_EQ(runs, 2);
}

TEST_F(ControlsTest, AClickOnTheThirdStateGivesZero) {
  CheckBox box(window, "chkA");
  box.SetState(2);
  Count(box.clicked);
  box.ClickByHand();
  EXPECT_EQ(box.State(), 0);
  EXPECT_EQ(runs, 1);
}

TEST_F(ControlsTest, AScrollBarRunsItsHandlerWhenItsValueReallyChanges) {
  ScrollBar bar(window, "HScroll1");
  Count(bar.changed);
  bar.SetValue(0);
  EXPECT_EQ(runs, 0);
  bar.SetValue(17);
  bar.SetValue(17);
  bar.MoveByHand(17);
  EXPECT_EQ(runs, 1);
  bar.MoveByHand(18);
  EXPECT_EQ(bar.Value(), 18);
  EXPECT_EQ(runs, 2);
}

TEST_F(ControlsTest, AScrollBarGoesToTheNearerEnd) {
  ScrollBar bar(window, "HScroll1");
  Count(bar.changed);
  bar.SetValue(-5);
  EXPECT_EQ(bar.Value(), 0);
  EXPECT_EQ(runs, 0);
  bar.SetValue(300);
  EXPECT_EQ(bar.Value(), 255);
  bar.SetValue(32767);
  EXPECT_EQ(bar.Value(), 255);
  EXPECT_EQ(runs, 1);
  bar.SetValue(-32768);
  EXPECT_EQ(bar.Value(), 0);
  EXPECT_EQ(runs, 2);
}

TEST_F(ControlsTest, ATabIsReadWithoutItsMarks) {
  TabGroup tabs(window, "SSTab", {{"A&&B"}, {"&Open"}, {"C&&&&D"}, {"plain"}});
  EXPECT_EQ(tabs.Tabs(), (std::vector<std::string>{"A&B", "Open", "C&&D", "plain"}));
  tabs.SetTab(3, "Power && drive");
  EXPECT_EQ(tabs.Tabs()[3], "Power & drive");
}

TEST_F(ControlsTest, AClickOnATabGivesItsHandlerTheTabThatWasLeft) {
  TabGroup tabs(window, "SSTab", {{"A"}, {"B"}, {"C"}});
  std::vector<int> left;
  tabs.clicked = [&](int tab) { left.push_back(tab * 10 + tabs.Tab()); };
  tabs.ClickByHand(2);
  tabs.ClickByHand(1);
  EXPECT_EQ(left, (std::vector<int>{2, 21}));
  EXPECT_EQ(tabs.Tab(), 1);
}

TEST_F(ControlsTest, AClickOnTheTabInFrontRunsNothing) {
  TabGroup tabs(window, "SSTab", {{"A"}, {"B"}});
  tabs.clicked = [this](int) { ++runs; };
  tabs.ClickByHand(0);
  EXPECT_EQ(runs, 0);
  tabs.ClickByHand(1);
  tabs.ClickByHand(1);
  EXPECT_EQ(runs, 1);
}

TEST_F(ControlsTest, BringingATabToTheFrontIsNoClick) {
  TabGroup tabs(window, "SSTab", {{"A"}, {"B"}});
  tabs.clicked = [this](int) { ++runs; };
  Watch(tabs);
  tabs.BringToFront(1);
  EXPECT_EQ(tabs.Tab(), 1);
  EXPECT_EQ(runs, 0);
  EXPECT_EQ(notices, std::vector<Aspect>{Aspect::Choice});
}

TEST_F(ControlsTest, APictureHasItsNaturalSizeAndItsPlace) {
  Picture picture(window, "picA");
  EXPECT_EQ(picture.File(), "");
  picture.Show("/gfx/bus.bmp", 501, 301);
  picture.MoveTo(-40.5, -0.5);
  EXPECT_EQ(picture.File(), "/gfx/bus.bmp");
  EXPECT_EQ(picture.Width(), 501);
  EXPECT_EQ(picture.Height(), 301);
  EXPECT_EQ(picture.Left(), -40.5);
  EXPECT_EQ(picture.Top(), -0.5);
}

TEST_F(ControlsTest, AClearedPictureHasNoSizeAndStaysWhereItWas) {
  Picture picture(window, "picA");
  picture.Show("/gfx/bus.bmp", 100, 50);
  picture.MoveTo(160, 125);
  picture.Clear();
  EXPECT_EQ(picture.File(), "");
  EXPECT_EQ(picture.Width(), 0);
  EXPECT_EQ(picture.Height(), 0);
  EXPECT_EQ(picture.Left(), 160);
  EXPECT_EQ(picture.Top(), 125);
}

TEST_F(ControlsTest, ASwatchHasNoColourUntilItsFirstFill) {
  Swatch swatch(window, "picA");
  EXPECT_FALSE(swatch.Color().has_value());
  swatch.Fill(1, 2, 3);
  EXPECT_EQ(swatch.Color(), (std::array{1, 2, 3}));
}

TEST_F(ControlsTest, ASwatchCutsItsComponentsToTheRange) {
  Swatch swatch(window, "picA");
  swatch.Fill(-1, 256, 255);
  EXPECT_EQ(swatch.Color(), (std::array{0, 255, 255}));
  swatch.Fill(32767, 0, -32768);
  EXPECT_EQ(swatch.Color(), (std::array{255, 0, 0}));
}

TEST_F(ControlsTest, AReportListHasThreeColumnsAndItsRowsInArrivalOrder) {
  ReportList list(window, "lstA");
  list.SetColumn(2, "Error");
  list.AddRow({"VAN", "Mass", "no number"});
  list.AddRow({"BUS", "", "too few"});
  EXPECT_EQ(list.Columns(), (ReportList::Row{"", "", "Error"}));
  EXPECT_EQ(list.Rows(),
            (std::vector<ReportList::Row>{{"VAN", "Mass", "no number"}, {"BUS", "", "too few"}}));
  list.Clear();
  EXPECT_TRUE(list.Rows().empty());
  EXPECT_EQ(list.Columns(), (ReportList::Row{"", "", "Error"}));
}

TEST_F(ControlsTest, AMirrorIsToldOfEachChangeOnce) {
  TextBox box(window, "txtA");
  Watch(box);
  box.SetText("1");
  box.SetText("1");
  EXPECT_EQ(notices, std::vector<Aspect>{Aspect::Content});
}

}  // namespace
}  // namespace wheelwright::testing
