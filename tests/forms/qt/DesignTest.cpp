// The two small windows have the places of their design, as long as the font needs no more room.
#include "forms/qt/Desktops.h"
#include "forms/qt/RealWindows.h"

namespace wheelwright::testing {
namespace {

class DesignTest : private FontOfDesktop, public RealWindows {
 protected:
  DesignTest() : FontOfDesktop(0.5) {}

  void Show(Window& window) {
    window.SetVisible(true);
    Activate(window);
  }

  // Neither larger nor able to become smaller.
  void ExpectSize(const Window& window, QSize size) {
    EXPECT_EQ(windows.Of(window).size(), size);
    EXPECT_EQ(windows.Of(window).minimumSizeHint(), size);
  }

  void ExpectPlace(const Control& control, QRect place) {
    EXPECT_EQ(windows.Of(control).geometry(), place) << control.Name();
  }
};

TEST_F(DesignTest, TheExport) {
  Show(test.exporter);
  ExpectSize(test.exporter, {359, 319});
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

}  // namespace
}  // namespace wheelwright::testing
