// A list box and its list view, in both directions.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/Settle.h"

#include <QScrollBar>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

std::vector<std::string> Numbered(int count) {
  std::vector<std::string> rows;
  for (int row = 0; row < count; ++row) rows.push_back("Row " + std::to_string(row));
  return rows;
}

class ListBoxMirrorTest : public MirrorBench {
 protected:
  ListBoxMirrorTest() {
    list.AddRows(Numbered(100));
    list.clicked = Counts();
    Settle();
  }

  QPoint PlaceOfRow(int row) {
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    return view.visualRect(index).center();
  }

  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, PlaceOfRow(row));
  }

  // The row that is chosen on both sides.
  int Row() {
    EXPECT_EQ(Difference(list), "");
    return list.Row();
  }

  RowView& view = Show<RowView>(list);
};

TEST_F(ListBoxMirrorTest, TheFocusChoosesNothing) {
  for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::MouseFocusReason, Qt::ShortcutFocusReason}) {
    elsewhere.setFocus();
    view.setFocus(reason);
    Settle();
    EXPECT_TRUE(view.hasFocus());
    EXPECT_EQ(Row(), -1);
  }
  EXPECT_EQ(runs, 0);
}

TEST_F(ListBoxMirrorTest, AClickChoosesAndRunsTheHandlerOnTheChosenRowAgain) {
  ClickRow(2);
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(runs, 1);
  ClickRow(2);
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(runs, 2);
  ClickRow(50);
  EXPECT_EQ(Row(), 50);
  EXPECT_EQ(runs, 3);
}

TEST_F(ListBoxMirrorTest, OnlyTheLeftButtonChoosesAgain) {
  ClickRow(2);
  for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(view.viewport(), other, {}, PlaceOfRow(2));
  }
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(runs, 1);
}

TEST_F(ListBoxMirrorTest, NoClickTakesTheChoiceAway) {
  ClickRow(2);
  ClickRow(2, Qt::ControlModifier);
  EXPECT_EQ(Row(), 2);
  list.Clear();
  list.AddRows({"only"});
  list.Choose(0);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewport()->rect().bottomRight());
  EXPECT_EQ(Row(), 0);
}

TEST_F(ListBoxMirrorTest, TheArrowKeysChooseAndReturnAndSpaceChooseAgain) {
  list.Choose(0);
  runs = 0;
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(runs, 1);
  QTest::keyClick(&view, Qt::Key_Return);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(runs, 3);
}

// The code of a key that the toolkit doesn't know is zero.
TEST_F(ListBoxMirrorTest, OtherKeysDoNotChooseAgain) {
  list.Choose(0);
  runs = 0;
  view.setFocus();
  for (const Qt::Key key : {Qt::Key(0), Qt::Key_Exclam, Qt::Key_Escape, Qt::Key_Shift}) {
    QTest::sendKeyEvent(QTest::Click, &view, key, QString(), {});
  }
  EXPECT_EQ(Row(), 0);
  EXPECT_EQ(runs, 0);
}

TEST_F(ListBoxMirrorTest, ReturnAndSpaceChooseTheRowUnderTheCursorWhenNothingIsChosen) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    list.Clear();
    list.AddRows(Numbered(2));
    runs = 0;
    elsewhere.setFocus();
    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, key);
    EXPECT_EQ(Row(), 0);
    EXPECT_EQ(runs, 1);
  }
}

TEST_F(ListBoxMirrorTest, TheProgramsChoiceRunsTheHandlerOnceAndIsScrolledTo) {
  list.Choose(90);
  EXPECT_EQ(Row(), 90);
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.model()->index(90, 0))));
}

TEST_F(ListBoxMirrorTest, OtherRowsChooseNothing) {
  view.setFocus();
  list.Choose(3);
  runs = 0;
  list.Clear();
  EXPECT_EQ(Row(), -1);
  list.AddRows({"a", "b"});
  EXPECT_EQ(Row(), -1);
  list.Choose(0);
  runs = 0;
  list.RemoveRow(0);
  EXPECT_EQ(Row(), -1);
  EXPECT_EQ(runs, 0);
}

TEST_F(ListBoxMirrorTest, ANewTextKeepsChoiceAndPlace) {
  list.Choose(90);
  Settle();
  view.verticalScrollBar()->setValue(70);
  runs = 0;
  list.ReplaceRow(0, "first");
  EXPECT_GT(PaintsAfter([this] { list.ReplaceRow(90, "other"); }, *view.viewport()), 0);
  EXPECT_EQ(Row(), 90);
  EXPECT_EQ(view.verticalScrollBar()->value(), 70);
  EXPECT_EQ(runs, 0);
}

TEST_F(ListBoxMirrorTest, AChoiceWhileTheListIsHiddenIsScrolledToAsWell) {
  list.SetVisible(false);
  list.Choose(90);
  list.SetVisible(true);
  Settle();
  EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.model()->index(90, 0))));
}

TEST_F(ListBoxMirrorTest, ARefilledListKeepsThePlace) {
  view.verticalScrollBar()->setValue(40);
  list.Clear();
  list.AddRows(Numbered(90));
  Settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), 40);
}

TEST_F(ListBoxMirrorTest, RowsThatGoAndComeKeepThePlace) {
  view.verticalScrollBar()->setValue(40);
  list.RemoveRow(95);
  list.AddRow("new");
  Settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), 40);
  EXPECT_EQ(Row(), -1);
}

TEST_F(ListBoxMirrorTest, RowsThatGoAndComeKeepThePlaceWhileAnotherIsChosen) {
  list.Choose(90);
  Settle();
  view.verticalScrollBar()->setValue(20);
  list.RemoveRow(5);
  list.AddRow("new");
  Settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), 20);
  EXPECT_EQ(Row(), 89);
}

}  // namespace
}  // namespace wheelwright::testing
