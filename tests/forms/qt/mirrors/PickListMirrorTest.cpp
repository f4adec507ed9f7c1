// A pick list and its combo box, in both directions.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/Settle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class PickListMirrorTest : public MirrorBench {
 protected:
  PickListMirrorTest() {
    pick.AddRows({"Petrol", "Diesel", "Electric"});
    pick.clicked = Counts();
  }

  void ClickRow(int row) {
    combo.showPopup();
    Settle();
    const QRect place = combo.view()->visualRect(combo.model()->index(row, 0));
    QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, place.center());
  }

  // The row that is chosen on both sides.
  int Row() {
    EXPECT_EQ(Difference(pick), "");
    return pick.Row();
  }

  QComboBox& combo = Show<QComboBox>(pick);
};

TEST_F(PickListMirrorTest, AClickOnAnEntryChoosesIt) {
  ClickRow(2);
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(runs, 1);
}

TEST_F(PickListMirrorTest, ChoosingTheEntryThatIsShownRunsTheHandlerAgain) {
  pick.Choose(1);
  runs = 0;
  ClickRow(1);
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(runs, 1);
}

TEST_F(PickListMirrorTest, TheKeyboardChoosesAndSearches) {
  pick.Choose(0);
  runs = 0;
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(Row(), 1);
  QTest::keyClick(&combo, Qt::Key_E);
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(runs, 2);
}

TEST_F(PickListMirrorTest, LeavingTheOpenListWithEscapeChoosesNothing) {
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(2, 0));
  QTest::keyClick(combo.view(), Qt::Key_Escape);
  EXPECT_EQ(Row(), -1);
  EXPECT_EQ(runs, 0);
}

TEST_F(PickListMirrorTest, TheProgramsChoiceRunsTheHandlerOnce) {
  pick.Choose(2);
  EXPECT_EQ(combo.currentIndex(), 2);
  EXPECT_EQ(runs, 1);
}

TEST_F(PickListMirrorTest, OtherRowsChooseNothing) {
  pick.Choose(1);
  runs = 0;
  pick.Clear();
  EXPECT_EQ(combo.currentIndex(), -1);
  pick.AddRow("Steam");
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(Row(), -1);
  EXPECT_EQ(runs, 0);
}

TEST_F(PickListMirrorTest, TheChosenEntryStaysChosenWhenRowsJoinAndShowsItsNewText) {
  pick.Choose(1);
  runs = 0;
  pick.AddRow("Steam");
  EXPECT_GT(PaintsAfter([this] { pick.ReplaceRow(1, "Gas oil"); }, combo), 0);
  EXPECT_EQ(combo.currentText(), "Gas oil");
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(runs, 0);
}

TEST_F(PickListMirrorTest, SixteenRowsDropDownOfALongList) {
  pick.Clear();
  pick.AddRows(std::vector<std::string>(100, "row"));
  combo.showPopup();
  Settle();
  const QAbstractItemView& view = *combo.view();
  const QRect last = view.visualRect(combo.model()->index(15, 0));
  EXPECT_EQ(view.viewport()->rect().bottom(), last.bottom());
}

TEST_F(PickListMirrorTest, EntriesOnlyAreOffered) { EXPECT_FALSE(combo.isEditable()); }

// A drop-down in the form of a menu, which some styles have, reads marks in the rows and has no
// scroll bar.
TEST_F(PickListMirrorTest, AListDropsDownInEveryStyle) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = false;
  EXPECT_EQ(combo.style()->styleHint(QStyle::SH_ComboBox_Popup, &option, &combo), 0);
  EXPECT_NE(qobject_cast<QStyledItemDelegate*>(combo.itemDelegate()), nullptr);
}

}  // namespace
}  // namespace wheelwright::testing
