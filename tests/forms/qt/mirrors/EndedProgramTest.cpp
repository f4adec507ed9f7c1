// Once a failure has ended the program, what a person still does changes neither side.
#include "forms/qt/MirrorBench.h"

#include <QTabBar>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class EndedProgramTest : public MirrorBench {
 protected:
  void EndProgram() {
    edge.Enter([] { throw Failure(FailureNumber::Overflow); });
    EXPECT_EQ(edge.ends, std::vector<std::string>{"Overflow"});
    edge.ends.clear();
  }
};

TEST_F(EndedProgramTest, ATextStays) {
  text.SetText("a");
  auto& widget = Show<QLineEdit>(text);
  EndProgram();
  QTest::keyClicks(&widget, "b");
  EXPECT_EQ(text.Text(), "a");
  EXPECT_EQ(Difference(text), "");
}

TEST_F(EndedProgramTest, AStateStays) {
  auto& widget = Show<QCheckBox>(check);
  EndProgram();
  widget.click();
  EXPECT_EQ(check.State(), 0);
  EXPECT_EQ(Difference(check), "");
}

TEST_F(EndedProgramTest, AValueStays) {
  auto& widget = Show<QScrollBar>(bar);
  EndProgram();
  QTest::keyClick(&widget, Qt::Key_Right);
  EXPECT_EQ(bar.Value(), 0);
  EXPECT_EQ(Difference(bar), "");
}

TEST_F(EndedProgramTest, AChoiceStays) {
  pick.AddRows({"a", "b"});
  list.AddRows({"a", "b"});
  marks.AddRows({"a", "b"});
  auto& combo = Show<QComboBox>(pick);
  auto& view = Show<RowView>(list);
  auto& marked = Show<RowView>(marks);
  EndProgram();
  QTest::keyClick(&combo, Qt::Key_Down);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseClick(marked.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(pick.Row(), -1);
  EXPECT_EQ(list.Row(), -1);
  EXPECT_EQ(marks.Marked(), std::vector<int>());
  EXPECT_EQ(Difference(pick) + Difference(list) + Difference(marks), "");
}

TEST_F(EndedProgramTest, ATabStaysInFront) {
  auto& widget = Show<QTabWidget>(tabs);
  EndProgram();
  QTest::mouseClick(widget.tabBar(), Qt::LeftButton, {}, widget.tabBar()->tabRect(1).center());
  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_EQ(Difference(tabs), "");
}

}  // namespace
}  // namespace wheelwright::testing
