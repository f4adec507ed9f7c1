// The two small windows have the places of their design, as long as the font needs no more room;
// the main window goes by the font.
#include "forms/qt/Desktops.h"
#include "forms/qt/RealWindows.h"
#include "forms/qt/Settle.h"
#include "forms/qt/layout/ViewChecks.h"

#include <QComboBox>

namespace wheelwright::testing {
namespace {

class DesignTest : private FontOfDesktop, public RealWindows {
 protected:
  DesignTest() : FontOfDesktop(0.5) {}

  void Show(Window& window) {
    window.SetVisible(true);
    Activate(window);
  }

  void ExpectPlace(const Control& control, QRect place) {
    EXPECT_EQ(windows.Of(control).geometry(), place) << control.Name();
  }
};

TEST_F(DesignTest, TheExport) {
  Show(test.exporter);
  EXPECT_EQ(windows.Of(test.exporter).size(), QSize(359, 319));
  ExpectPlace(test.exporter.lblExportCar, {8, 8, 145, 17});
  ExpectPlace(test.exporter.lblExport, {208, 8, 145, 17});
  ExpectPlace(test.exporter.lst1, {8, 32, 145, 251});
  ExpectPlace(test.exporter.lst2, {208, 32, 145, 251});
  ExpectPlace(test.exporter.cmdAdd, {160, 32, 41, 25});
  ExpectPlace(test.exporter.cmdDel, {160, 57, 41, 25});
  ExpectPlace(test.exporter.cmdAddAll, {160, 89, 41, 25});
  ExpectPlace(test.exporter.cmdDelAll, {160, 114, 41, 25});
  ExpectPlace(test.exporter.cmdExport, {184, 288, 81, 25});
  ExpectPlace(test.exporter.cmdClose, {272, 288, 81, 25});
}

TEST_F(DesignTest, TheLoadProblems) {
  Show(test.error);
  EXPECT_EQ(windows.Of(test.error).size(), QSize(570, 336));
  ExpectPlace(test.error.lstErrors, {0, 0, 569, 297});
  ExpectPlace(test.error.cmdClose, {464, 304, 97, 25});
  for (const Control* control : test.error.Controls()) {
    EXPECT_EQ(windows.Of(*control).font().families().constFirst(), "Verdana") << control->Name();
  }
}

class MainDesignTest : public RealWindows {
 protected:
  QRect Place(const Control& control) const { return PlaceOf(windows.Of(control)); }

  void OpenOnTab(int tab) {
    test.OpenHandling(VehicleLineOf("BUS"));
    main.SSTab1.ClickByHand(tab);
    Settle();
  }

  // The dots between two controls, of which the other stands below or right of the first.
  int Below(const Control& one, const Control& other) { return Place(other).top() - Place(one).bottom() - 1; }
  int Beside(const Control& one, const Control& other) {
    return Place(other).left() - Place(one).right() - 1;
  }

  const int letter = windows.Of(main).fontMetrics().height();
};

TEST_F(MainDesignTest, TheTabsStandBesideTheColumnAndAboveTheBottomRow) {
  OpenOnTab(kGeneralTab);
  EXPECT_EQ(Beside(main.FrameAutos, main.SSTab1), letter);
  EXPECT_EQ(Below(main.FrameSprache, main.FrameAutos), letter / 2);
  EXPECT_EQ(Below(main.FrameAutos, main.cmdOpen), letter / 2 * 2);
  EXPECT_EQ(Below(main.cmdOpen, main.cmdSave), letter / 2);
  EXPECT_EQ(Beside(main.cmdHelp, main.cmdInfo), letter / 2);
  EXPECT_EQ(Place(main.cmdHelp).left(), Place(main.SSTab1).left());
  EXPECT_EQ(Place(main.cmdEnde).right(), Place(main.SSTab1).right());
  EXPECT_GT(Place(main.cmdEnde).top(), Place(main.SSTab1).bottom());
}

// On every page the inputs stand in the same place, and a row with a text box is as high as one
// with a list.
TEST_F(MainDesignTest, TheRowsOfAPageAreOfOneHeightAndItsInputsOfOneWidth) {
  OpenOnTab(kGeneralTab);
  const int character = windows.Of(main).fontMetrics().averageCharWidth();
  const QRect label = Place(main.txtGewicht.label);
  const QRect input = Place(main.txtGewicht);
  EXPECT_EQ(input.left(), label.left() + 25 * character + letter);
  EXPECT_GE(input.width(), 24 * character);
  EXPECT_NEAR(2 * input.width(), 3 * Place(*main.txtGewicht.hint).width(), letter);
  EXPECT_EQ(Beside(main.txtGewicht, *main.txtGewicht.hint), letter);
  EXPECT_EQ(Place(main.txtPedSeat.label).top() - label.top(),
            Of<QComboBox>(main.cmbFrontLichter).sizeHint().height() + letter / 2);
  EXPECT_EQ(Place(main.cmbFrontLichter).width(), input.width());
}

TEST_F(MainDesignTest, OnAWideScreenAHintStaysBesideItsInput) {
  windows.Of(main).resize(3840, 2160);
  OpenOnTab(kGeneralTab);
  EXPECT_LE(Place(main.txtGewicht).width(), 48 * windows.Of(main).fontMetrics().averageCharWidth());
  EXPECT_EQ(Beside(main.txtGewicht, *main.txtGewicht.hint), letter);
}

TEST_F(MainDesignTest, OnAWideScreenWhatBelongsTogetherStaysTogether) {
  const int most = 150 * windows.Of(main).fontMetrics().averageCharWidth() + 2 * letter;
  windows.Of(main).resize(3840, 2160);
  const auto expectNear = [&](const Control& rightmost, const Control& tabs) {
    Settle();
    EXPECT_LE(Place(rightmost).right() - Place(tabs).left(), most) << rightmost.Name();
  };
  OpenOnTab(kFlagsTab);
  expectNear(main.chkFlag[3], main.SSTab1);
  OpenOnTab(kMiscTab);
  expectNear(main.frameDate, main.SSTab1);
  test.OpenColors(kColors);
  expectNear(main.picFarbe, main.SSTab3);
  main.SSTab3.ClickByHand(kPairsTab);
  expectNear(main.frameAddColors, main.SSTab3);
}

TEST_F(MainDesignTest, TheButtonsOfTheVehiclesAreAQuarterOfThePageEach) {
  OpenOnTab(kMiscTab);
  EXPECT_NEAR(Place(main.cmdImportCar).width(), Place(main.SSTab1).width() / 4, letter);
  EXPECT_EQ(Place(main.cmdExportCar).size(), Place(main.cmdImportCar).size());
  EXPECT_EQ(Beside(main.cmdImportCar, main.cmdExportCar), letter);
  EXPECT_EQ(Below(main.cmdImportCar, main.frameAuthor), letter);
  EXPECT_EQ(Beside(main.frameAuthor, main.frameDate), letter);
}

TEST_F(MainDesignTest, TheHalvesOfTheColorPagesStandInTheirOrder) {
  test.OpenColors(kColors);
  Settle();
  EXPECT_EQ(Beside(main.cmdNewColor, main.cmdDeleteColor), letter);
  EXPECT_EQ(Beside(main.lstColors, main.lblColorName), letter);
  const int row = Of<QComboBox>(main.cmbAutos).sizeHint().height() + letter / 2;
  EXPECT_EQ(Place(main.HScroll1).translated(0, row), Place(main.HScroll2));
  EXPECT_EQ(Place(main.HScroll2).translated(0, row), Place(main.HScroll3));
  EXPECT_EQ(Place(main.picFarbe).right(), Place(main.txtColorName).right());
  main.SSTab3.ClickByHand(kPairsTab);
  Settle();
  EXPECT_EQ(Beside(main.frameColors, main.frameAddColors), letter);
  EXPECT_EQ(Below(main.picColor1, main.picColor2), letter / 2);
  EXPECT_EQ(Below(main.picColor2, main.cmdAddColor), letter / 2);
}

}  // namespace
}  // namespace wheelwright::testing
