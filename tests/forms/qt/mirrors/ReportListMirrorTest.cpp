// A list in report form and its view.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/Settle.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QTreeView>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class ReportListMirrorTest : public MirrorBench {
 protected:
  ReportListMirrorTest() {
    view.setFixedSize(569, 297);
    Settle();
  }

  QString Cell(int row, int column) const { return view.model()->index(row, column).data().toString(); }

  std::array<int, 3> Widths() const {
    const QHeaderView& header = *view.header();
    return {header.sectionSize(0), header.sectionSize(1), header.sectionSize(2)};
  }

  void AddRows(int count) {
    for (int row = 0; row < count; ++row) report.AddRow({"BUS", "&Mass", "Must be a number"});
    Settle();
  }

  QTreeView& view = Show<QTreeView>(report);
};

TEST_F(ReportListMirrorTest, RowsShowInOrderOfArrivalAndGoAllAtOnce) {
  AddRows(2);
  report.AddRow({"TAXI", "", "Wrong number"});
  EXPECT_EQ(view.model()->rowCount(), 3);
  EXPECT_EQ(Cell(2, 0), "TAXI");
  EXPECT_EQ(Cell(2, 2), "Wrong number");
  report.Clear();
  EXPECT_EQ(view.model()->rowCount(), 0);
  EXPECT_EQ(Difference(report), "");
}

TEST_F(ReportListMirrorTest, RowsThatAreThereAlreadyShow) {
  AddRows(2);
  Show<QTreeView>(report);
  EXPECT_EQ(Difference(report), "");
}

TEST_F(ReportListMirrorTest, AFieldsCaptionShowsWithoutItsMarksAndTextsOfTheFileAsTheyAre) {
  report.AddRow({"R&&D &x", "Engine && &drive", "<b>7</b> && 8"});
  EXPECT_EQ(Cell(0, 0), "R&&D &x");
  EXPECT_EQ(Cell(0, 1), "Engine & drive");
  EXPECT_EQ(Cell(0, 2), "<b>7</b> && 8");
  EXPECT_EQ(report.Rows()[0][1], "Engine && &drive");
  EXPECT_EQ(Difference(report), "");
}

TEST_F(ReportListMirrorTest, HeadersFollowWithoutTheirMarks) {
  report.SetColumn(1, "&Field");
  EXPECT_EQ(view.model()->headerData(1, Qt::Horizontal).toString(), "Field");
  EXPECT_EQ(Difference(report), "");
}

TEST_F(ReportListMirrorTest, ColumnsHaveTheirWidthsAndTheLastOneFills) {
  EXPECT_EQ(Widths(), (std::array<int, 3>{100, 160, view.viewport()->width() - 260}));
  view.setFixedWidth(900);
  Settle();
  EXPECT_EQ(Widths(), (std::array<int, 3>{100, 160, view.viewport()->width() - 260}));
  EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
}

TEST_F(ReportListMirrorTest, ATextThatIsCutOffHasAToolTipThatIsNoMarkup) {
  report.AddRow({"<b>bus</b> & the longest name of a vehicle", "", "x"});
  const auto tip = [this](int column) {
    return view.model()->index(0, column).data(Qt::ToolTipRole).toString();
  };
  EXPECT_EQ(QTextDocumentFragment::fromHtml(tip(0)).toPlainText(), Cell(0, 0));
  EXPECT_TRUE(Qt::mightBeRichText(tip(0))) << "or else the toolkit would guess";
  EXPECT_EQ(tip(2), "");
  view.setColumnWidth(0, 400);
  EXPECT_EQ(tip(0), "");
}

TEST_F(ReportListMirrorTest, WholeRowsAreCopiedAsTheyAreRead) {
  AddRows(1);
  report.AddRow({"TAXI", "", "Wrong number"});
  report.AddRow({"VAN", "x", "y"});
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            "BUS\tMass\tMust be a number\nTAXI\t\tWrong number\nVAN\tx\ty\n");
  const auto click = [this](int row, Qt::KeyboardModifier modifier) {
    const QRect place = view.visualRect(view.model()->index(row, 1));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifier, place.center());
  };
  click(2, Qt::NoModifier);
  click(0, Qt::ControlModifier);
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "BUS\tMass\tMust be a number\nVAN\tx\ty\n");
  click(1, Qt::NoModifier);
  click(1, Qt::ControlModifier);
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith("VAN\tx\ty\n")) << "nothing was marked";
}

TEST_F(ReportListMirrorTest, TheWholeRowWithTheFocusIsSeen) {
  AddRows(2);
  view.setFocus();
  view.selectionModel()->setCurrentIndex(view.model()->index(0, 0), QItemSelectionModel::NoUpdate);
  const QImage image = view.viewport()->grab().toImage();
  const auto color = [&](int row) {
    return image.pixelColor(view.visualRect(view.model()->index(row, 2)).bottomRight() - QPoint(20, 3));
  };
  EXPECT_NE(color(0), color(1));
}

TEST_F(ReportListMirrorTest, AColumnIsAtLeastAsWideAsItsHeader) {
  report.SetColumn(0, "A header that no column has room for");
  EXPECT_EQ(Widths()[0], view.header()->sectionSizeHint(0));
  EXPECT_GT(Widths()[0], 100);
  EXPECT_EQ(Widths()[1], 160);
  EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
}

TEST_F(ReportListMirrorTest, TheLastColumnMakesRoomForAVerticalScrollBar) {
  AddRows(200);
  ASSERT_TRUE(view.verticalScrollBar()->isVisible());
  EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
  EXPECT_EQ(Widths()[0], 100);
  EXPECT_EQ(Widths()[1], 160);
  EXPECT_EQ(view.header()->length(), view.viewport()->width());
  report.Clear();
  Settle();
  EXPECT_EQ(view.header()->length(), view.viewport()->width());
}

TEST_F(ReportListMirrorTest, ARowThatJoinsKeepsThePlace) {
  AddRows(200);
  view.verticalScrollBar()->setValue(50);
  AddRows(1);
  EXPECT_EQ(view.verticalScrollBar()->value(), 50);
}

}  // namespace
}  // namespace wheelwright::testing
