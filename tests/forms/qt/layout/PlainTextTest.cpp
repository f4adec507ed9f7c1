// Texts from files show as they are: never as markup, and with every "&", "%1" and "[*]".
#include "forms/qt/RealWindows.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTreeView>
#include <QWindow>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

constexpr const char* kOddVehicle = "<b>x</b>R&D";
constexpr const char* kOddName = "<b>x</b>R&D%1";

class PlainTextTest : public RealWindows {
 protected:
  PlainTextTest() { test.OpenHandling(VehicleLineOf(kOddVehicle)); }

  static QString FirstRow(const QWidget& view) {
    const QAbstractItemModel& model = *static_cast<const QAbstractItemView&>(view).model();
    return model.index(0, 0).data().toString();
  }
};

TEST_F(PlainTextTest, AVehiclesNameShowsInBoxesAndLists) {
  auto& autos = Of<QComboBox>(main.cmbAutos);
  EXPECT_EQ(autos.currentText(), kOddVehicle);
  EXPECT_EQ(FirstRow(*autos.view()), kOddVehicle);
  EXPECT_EQ(Of<QLineEdit>(main.txtAutoname).text(), kOddVehicle);
  main.cmdExportCar.ClickByHand();
  EXPECT_EQ(FirstRow(windows.Of(test.exporter.lst1)), kOddVehicle);
  test.error.lstErrors.AddRow({kOddName, "", kOddName});
  EXPECT_EQ(FirstRow(windows.Of(test.error.lstErrors)), kOddName);
}

TEST_F(PlainTextTest, AColorsNameShowsInAllItsLists) {
  test.OpenColors(std::string("col\r\n1,2,3\t# 0 ") + kOddName + "\r\nend\r\ncar\r\nbus, 0,0\r\n" +
                  "end\r\n");
  const QString row = QString(kOddName) + " - 1,2,3";
  EXPECT_EQ(FirstRow(windows.Of(main.lstColors)), row);
  EXPECT_EQ(FirstRow(*Of<QComboBox>(main.cmbColor1).view()), row);
  EXPECT_EQ(FirstRow(windows.Of(main.lstCarColors)), QString(kOddName) + " - " + kOddName);
}

TEST_F(PlainTextTest, NoLabelGuessesMarkup) {
  int labels = 0;
  for (const Window* window : all) {
    for (const QLabel* label : windows.Of(*window).findChildren<QLabel*>()) {
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
      ++labels;
    }
  }
  EXPECT_GT(labels, 80);
}

TEST_F(PlainTextTest, ATitleShowsAFilesNameWhole) {
  test.Open("/game/<b>[*]R&D%1.cfg", VehicleLineOf("BUS"), 1);
  EXPECT_EQ(windows.Of(main).windowHandle()->title(), QString::fromStdString(main.Title()));
  EXPECT_TRUE(main.Title().find("<b>[*]R&D%1.cfg") != std::string::npos);
}

TEST_F(PlainTextTest, ALanguagesCaptionsAreNoMarkup) {
  main.txtGewicht.label.SetCaption("<i>a</i> && b");
  main.txtGewicht.hint->SetCaption("<i>a</i> && b");
  main.SSTab1.SetTab(0, "<i>a</i> && b");
  EXPECT_EQ(Of<QLabel>(*main.txtGewicht.hint).text(), "<i>a</i> & b");
  EXPECT_EQ(Of<QLineEdit>(main.txtGewicht).accessibleName(), "<i>a</i> & b");
  EXPECT_EQ(Of<QTabWidget>(main.SSTab1).tabText(0), "<i>a</i> && b");
  EXPECT_EQ(Differences(), "");
}

}  // namespace
}  // namespace wheelwright::testing
