// Whoever mirrors a control on a real screen is told once its change is complete, and of each
// change.
#include "screen/Controls.h"
#include "screen/Lists.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;

std::string Joined(const Texts& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += text + ";";
  return joined;
}

std::string StateOf(const Control& control) {
  return std::string(control.IsEnabled() ? "on" : "off") + (control.IsVisible() ? "" : " hidden");
}

std::string FrontOf(const TabGroup& tabs) { return Joined(tabs.Tabs()) + std::to_string(tabs.Tab()); }

std::string PictureOf(const Picture& picture) {
  return picture.File() + " " + std::to_string(picture.Width()) + "x" + std::to_string(picture.Height()) +
         " at " + std::to_string(static_cast<int>(picture.Left())) + "," +
         std::to_string(static_cast<int>(picture.Top()));
}

std::string ColorOf(const Swatch& swatch) {
  const std::array<int, 3> color = swatch.Color().value_or(std::array{-1, -1, -1});
  return std::to_string(color[0]) + "," + std::to_string(color[1]) + "," + std::to_string(color[2]);
}

std::string ReportOf(const ReportList& list) {
  std::string report = list.Columns()[0];
  for (const ReportList::Row& row : list.Rows()) report += " | " + row[0];
  return report;
}

std::string RowsOf(const RowList& list) { return Joined(list.Rows()) + std::to_string(list.Row()); }

std::string MarksOf(const MarkList& list) {
  std::string marks = Joined(list.Rows());
  for (const int row : list.Marked()) marks += std::to_string(row);
  return marks;
}

// Writes down what a mirror reads each time it is told of a change.
class MirrorTest : public ::testing::Test {
 protected:
  template <class Mirrored>
  void Watch(Mirrored& control, const std::function<std::string(const Mirrored&)>& read) {
    control.notice = [&, read](Aspect) { found.push_back(read(control)); };
  }

  Window window{"frmTest", "Test"};
  Texts found;
};

TEST_F(MirrorTest, OfAWindow) {
  window.notice = [this] { found.push_back(window.Title() + (window.IsVisible() ? "+" : "-")); };
  window.SetTitle("Other");
  window.SetVisible(true);
  EXPECT_EQ(found, (Texts{"Other-", "Other+"}));
}

TEST_F(MirrorTest, OfTheStateOfAControl) {
  Label label(window, "lbl");
  Watch<Label>(label, StateOf);
  label.SetEnabled(false);
  label.SetVisible(false);
  EXPECT_EQ(found, (Texts{"off", "off hidden"}));
}

TEST_F(MirrorTest, OfACaption) {
  Label label(window, "lbl");
  Watch<Label>(label, &Label::Caption);
  label.SetCaption("Mass");
  EXPECT_EQ(found, Texts{"Mass"});
}

TEST_F(MirrorTest, OfAText) {
  TextBox box(window, "txt");
  Watch<TextBox>(box, &TextBox::Text);
  box.changed = [this] { found.emplace_back("changed"); };
  box.SetText("7");
  EXPECT_EQ(found, (Texts{"7", "changed"}));
}

TEST_F(MirrorTest, OfABoxAndABar) {
  CheckBox box(window, "chk");
  box.notice = [&](Aspect) { found.push_back(std::to_string(box.State())); };
  box.clicked = [this] { found.emplace_back("clicked"); };
  box.SetState(2);
  ScrollBar bar(window, "bar");
  bar.notice = [&](Aspect) { found.push_back(std::to_string(bar.Value())); };
  bar.changed = [this] { found.emplace_back("changed"); };
  bar.SetValue(9);
  EXPECT_EQ(found, (Texts{"2", "clicked", "9", "changed"}));
}

TEST_F(MirrorTest, OfTabs) {
  TabGroup tabs(window, "SSTab", {{"a"}, {"b"}});
  Watch<TabGroup>(tabs, FrontOf);
  tabs.clicked = [this](int left) { found.push_back("left " + std::to_string(left)); };
  tabs.SetTab(1, "c");
  tabs.ClickByHand(1);
  EXPECT_EQ(found, (Texts{"a;c;0", "a;c;1", "left 0"}));
}

TEST_F(MirrorTest, OfAPicture) {
  Picture picture(window, "pic");
  Watch<Picture>(picture, PictureOf);
  picture.Show("bus.bmp", 4, 3);
  picture.MoveTo(2, 1);
  picture.Clear();
  EXPECT_EQ(found, (Texts{"bus.bmp 4x3 at 0,0", "bus.bmp 4x3 at 2,1", " 0x0 at 2,1"}));
}

TEST_F(MirrorTest, OfASwatch) {
  Swatch swatch(window, "pic");
  Watch<Swatch>(swatch, ColorOf);
  swatch.Fill(1, 2, 3);
  EXPECT_EQ(found, Texts{"1,2,3"});
}

TEST_F(MirrorTest, OfAReport) {
  ReportList list(window, "lst");
  Watch<ReportList>(list, ReportOf);
  list.SetColumn(0, "Vehicle");
  list.AddRow({"BUS", "", ""});
  list.Clear();
  EXPECT_EQ(found, (Texts{"Vehicle", "Vehicle | BUS", "Vehicle"}));
}

TEST_F(MirrorTest, OfRows) {
  PickList list(window, "cmb");
  Watch<PickList>(list, RowsOf);
  list.clicked = [this] { found.emplace_back("clicked"); };
  list.AddRow("BUS");
  list.AddRows({"TAXI", "VAN"});
  list.Choose(2);
  list.ReplaceRow(0, "BOAT");
  list.RemoveRow(0);
  list.Clear();
  EXPECT_EQ(found, (Texts{"BUS;-1", "BUS;TAXI;VAN;-1", "BUS;TAXI;VAN;2", "clicked", "BOAT;TAXI;VAN;2",
                          "TAXI;VAN;1", "-1"}));
}

TEST_F(MirrorTest, OfMarks) {
  MarkList list(window, "lst", Order::Sorted);
  Watch<MarkList>(list, MarksOf);
  list.AddRows({"BUS", "TAXI", "VAN"});
  list.MarkByHand({0, 2});
  list.AddRow("AXO");
  list.RemoveRow(0);
  list.RemoveMarked();
  EXPECT_EQ(found,
            (Texts{"BUS;TAXI;VAN;", "BUS;TAXI;VAN;02", "AXO;BUS;TAXI;VAN;13", "BUS;TAXI;VAN;02", "TAXI;"}));
}

}  // namespace
}  // namespace wheelwright::testing
