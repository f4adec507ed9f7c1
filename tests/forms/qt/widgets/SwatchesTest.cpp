// The small squares of colour beside the rows of the palette.
#include "forms/qt/QtPrinters.h"
#include "forms/qt/RealWindows.h"
#include "forms/qt/Settle.h"
#include "forms/qt/widgets/Swatches.h"

#include <QComboBox>
#include <QImage>
#include <QListView>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

QImage Painted(const QIcon& icon, int side) { return icon.pixmap(QSize(side, side), 1).toImage(); }

QColor Middle(const QIcon& icon) { return Painted(icon, 32).pixelColor(16, 16); }

class SwatchesTest : public RealWindows {
 protected:
  SwatchesTest() { test.OpenColors(kColors); }

  // The colours beside the rows, "none" where there is no square.
  static QStringList Beside(const QAbstractItemModel& rows) {
    QStringList colors;
    for (int row = 0; row < rows.rowCount(); ++row) {
      const auto icon = rows.index(row, 0).data(Qt::DecorationRole).value<QIcon>();
      colors += icon.isNull() ? "none" : Middle(icon).name();
    }
    return colors;
  }

  QStringList BesideThePalette() { return Beside(*Of<QListView>(main.lstColors).model()); }
  QStringList BesideThePick(const PickList& list) { return Beside(*Of<QComboBox>(list).model()); }
};

TEST_F(SwatchesTest, ThePaletteAndItsPickListsShowEachColor) {
  const QStringList colors = {"#010203", "#c86432"};
  EXPECT_EQ(BesideThePalette(), colors);
  EXPECT_EQ(BesideThePick(main.cmbColor1), colors);
  EXPECT_EQ(BesideThePick(main.cmbColor2), colors);
}

TEST_F(SwatchesTest, TheSquareFollowsTheBars) {
  main.lstColors.Choose(1);
  main.HScroll1.MoveByHand(255);
  main.HScroll3.MoveByHand(0);
  EXPECT_EQ(BesideThePalette(), (QStringList{"#010203", "#ff6400"}));
}

// What the pick lists say and what they show goes together, also while the palette is newer.
TEST_F(SwatchesTest, ThePickListsFollowWhenTheirRowsDo) {
  main.lstColors.Choose(1);
  main.HScroll1.MoveByHand(255);
  EXPECT_EQ(BesideThePick(main.cmbColor1), (QStringList{"#010203", "#c86432"}));
  main.SSTab3.ClickByHand(1);
  EXPECT_EQ(BesideThePick(main.cmbColor1), (QStringList{"#010203", "#ff6432"}));
}

TEST_F(SwatchesTest, AddedAndDeletedColorsHaveTheirOwn) {
  main.cmdNewColor.ClickByHand();
  EXPECT_EQ(BesideThePalette(), (QStringList{"#010203", "#c86432", "#0080ff"}));
  main.lstColors.Choose(0);
  test.desktop.answers = {true};
  main.cmdDeleteColor.ClickByHand();
  EXPECT_EQ(BesideThePalette(), (QStringList{"#c86432", "#0080ff"}));
}

TEST_F(SwatchesTest, APairShowsItsTwoColors) {
  const auto& list = Of<QListView>(main.lstCarColors);
  const QModelIndex row = list.model()->index(0, 0);
  EXPECT_EQ(row.data().toString(), "black - brown");
  const QImage image = row.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(64, 32), 1).toImage();
  EXPECT_EQ(image.pixelColor(16, 16).name(), "#010203");
  EXPECT_EQ(image.pixelColor(48, 16).name(), "#c86432");
  EXPECT_EQ(image.pixelColor(32, 16).alpha(), 0) << "the two squares don't touch";
  EXPECT_EQ(list.iconSize(), SwatchIconSize(list, 2));
}

void ExpectAllEdges(const QImage& image) {
  const QPoint last(image.width() - 1, image.height() - 1);
  const QPoint middle = last / 2;
  for (const QPoint edge : {QPoint(0, middle.y()), QPoint(last.x(), middle.y()), QPoint(middle.x(), 0),
                            QPoint(middle.x(), last.y())}) {
    EXPECT_LT(image.pixelColor(edge).lightness(), image.pixelColor(middle).lightness() - 20)
        << edge.x() << ", " << edge.y();
  }
}

TEST_F(SwatchesTest, AnAreaAndTheBarsOverItHaveAllTheirEdges) {
  main.lstColors.Choose(1);
  Settle();
  const QImage area = windows.Of(main.picFarbe).grab().toImage();
  EXPECT_EQ(area.pixelColor(area.rect().center()).name(), "#c86432");
  ExpectAllEdges(area);
  ExpectAllEdges(windows.Of(main.HScroll3).grab().toImage());
}

TEST_F(SwatchesTest, OtherListsShowNone) { EXPECT_EQ(BesideThePick(main.cmbAutos), QStringList{"none"}); }

TEST_F(SwatchesTest, TheyAreAsLargeAsTheLettersBesideThem) {
  for (QSize size : {Of<QListView>(main.lstColors).iconSize(), Of<QComboBox>(main.cmbColor1).iconSize()}) {
    EXPECT_EQ(size, SwatchIconSize(windows.Of(main.lstColors)));
  }
  EXPECT_GT(SwatchIconSize(windows.Of(main.lstColors)).height(),
            windows.Of(main.lstColors).fontMetrics().height());
}

// A black square on a black list and a white one on a white list are seen by their edge.
TEST_F(SwatchesTest, TheSquareHasAnEdgeAndKeepsClearOfTheNext) {
  const QImage image = Painted(SwatchIcon({QColor(Qt::white)}), 16);
  EXPECT_EQ(image.pixelColor(0, 8).alpha(), 0);
  EXPECT_EQ(image.pixelColor(15, 8).alpha(), 0);
  for (const int side : {2, 13}) {
    EXPECT_LT(image.pixelColor(side, 8).lightness(), 160);
    EXPECT_LT(image.pixelColor(8, side).lightness(), 160);
  }
  EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
}

}  // namespace
}  // namespace wheelwright::testing
