// A list with marks and its view with extended selection, in both directions.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/Settle.h"

#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

using Marked = std::vector<int>;

class MarkListMirrorTest : public MirrorBench {
 protected:
  MarkListMirrorTest() {
    marks.AddRows({"a", "b", "c", "d", "e", "f"});
    Settle();
  }

  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    const QRect place = view.visualRect(view.model()->index(row, 0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, place.center());
  }

  // The rows that are marked on both sides.
  Marked Rows() {
    EXPECT_EQ(Difference(marks), "");
    return marks.Marked();
  }

  RowView& view = Show<RowView>(marks);
};

TEST_F(MarkListMirrorTest, AClickMarksOneRowAlone) {
  ClickRow(1);
  ClickRow(3);
  EXPECT_EQ(Rows(), (Marked{3}));
}

TEST_F(MarkListMirrorTest, ControlAddsAndTakesAway) {
  ClickRow(1);
  ClickRow(3, Qt::ControlModifier);
  ClickRow(5, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Marked{1, 3, 5}));
  ClickRow(3, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Marked{1, 5}));
  ClickRow(1, Qt::ControlModifier);
  ClickRow(5, Qt::ControlModifier);
  EXPECT_EQ(Rows(), Marked());
}

TEST_F(MarkListMirrorTest, ShiftMarksARangeInBothDirections) {
  ClickRow(2);
  ClickRow(4, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Marked{2, 3, 4}));
  ClickRow(0, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Marked{0, 1, 2}));
}

TEST_F(MarkListMirrorTest, TheKeyboardMarksToo) {
  ClickRow(1);
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (Marked{1, 2}));
  QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Marked{0, 1, 2, 3, 4, 5}));
}

TEST_F(MarkListMirrorTest, TheFocusMarksNothing) {
  view.setFocus(Qt::TabFocusReason);
  Settle();
  EXPECT_TRUE(view.hasFocus());
  EXPECT_EQ(Rows(), Marked());
}

TEST_F(MarkListMirrorTest, ANewTextShowsAndKeepsTheMarks) {
  marks.Clear();
  marks.AddRow("only");
  ClickRow(0);
  EXPECT_GT(PaintsAfter([this] { marks.ReplaceRow(0, "other"); }, *view.viewport()), 0);
  EXPECT_EQ(Rows(), Marked{0});
}

TEST_F(MarkListMirrorTest, MarksMoveWithTheirRowsAndGoWithThem) {
  ClickRow(1);
  ClickRow(3, Qt::ControlModifier);
  marks.RemoveRow(0);
  EXPECT_EQ(Rows(), (Marked{0, 2}));
  marks.RemoveMarked();
  EXPECT_EQ(Rows(), Marked());
  marks.Clear();
  marks.AddRows({"x", "y"});
  EXPECT_EQ(Rows(), Marked());
}

}  // namespace
}  // namespace wheelwright::testing
