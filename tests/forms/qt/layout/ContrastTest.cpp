// Whatever the colours of the desktop, everything can be read: measured on what is painted.
#include "forms/qt/Desktops.h"
#include "forms/qt/RealWindows.h"
#include "forms/qt/Settle.h"
#include "forms/qt/layout/ViewChecks.h"
#include "replay/DarkPalette.h"

#include <cmath>
#include <map>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

namespace wheelwright::testing {
namespace {

// What the guidelines for readable pages ask for.
constexpr double kReadable = 4.5;
// The same for what is a shape rather than a text.
constexpr double kVisible = 3.0;

double Luminance(QRgb color) {
  const auto linear = [](int component) {
    const double part = component / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double Contrast(QRgb one, QRgb other) {
  const double brighter = std::max(Luminance(one), Luminance(other));
  const double darker = std::min(Luminance(one), Luminance(other));
  return (brighter + 0.05) / (darker + 0.05);
}

// The greatest contrast in a part of a widget, against the colour that most of it has.
double ContrastIn(QWidget& widget, const QRect& part) {
  const QImage image =
      widget.window()->grab(QRect(widget.mapTo(widget.window(), part.topLeft()), part.size())).toImage();
  std::map<QRgb, int> counts;
  auto last = counts.emplace(image.pixel(0, 0), 0).first;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      // Most dots have the colour of the one before them.
      const QRgb color = image.pixel(x, y);
      if (color != last->first) last = counts.emplace(color, 0).first;
      ++last->second;
    }
  }
  QRgb background = 0;
  int most = 0;
  for (const auto& [color, count] : counts) {
    if (count > most) background = color;
    most = std::max(most, count);
  }
  double contrast = 1;
  for (const auto& [color, count] : counts) {
    contrast = std::max(contrast, Contrast(color, background));
  }
  return contrast;
}

// Where the text of a widget stands; empty for a widget without any.
QRect TextPlace(const QWidget& widget) {
  constexpr int kFrame = 4;
  const QRect inside = widget.rect().adjusted(kFrame, kFrame, -kFrame, -kFrame);
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return label->text().isEmpty() ? QRect() : widget.rect();
  }
  if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
    return box->text().isEmpty() ? QRect() : inside;
  }
  if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
    return list->currentText().isEmpty() ? QRect() : inside.adjusted(0, 0, -inside.height(), 0);
  }
  if (const auto* check = qobject_cast<const QCheckBox*>(&widget)) {
    return check->text().isEmpty() ? QRect() : inside.adjusted(inside.height(), 0, 0, 0);
  }
  return qobject_cast<const QPushButton*>(&widget) != nullptr ? inside : QRect();
}

void ExpectReadableTexts(const View& view) {
  for (const Control* control : view.showing) {
    QWidget& widget = view.Of(*control);
    const QRect place = TextPlace(widget);
    if (place.isEmpty() || !widget.isEnabled()) continue;
    EXPECT_GE(ContrastIn(widget, place), kReadable) << control->Name();
  }
}

class SwatchContrastTest : public RealWindows {
 protected:
  SwatchContrastTest() {
    test.OpenColors(
        "col\r\n0,0,0\t# 0 a\r\n30,30,30\t# 1 b\r\n255,255,255\t# 2 c\r\nend\r\n"
        "car\r\nbus, 0,1\r\nend\r\n");
    Settle();
  }

  // The squares of the rows that aren't chosen stand out from the list.
  void ExpectSquaresStandOut() {
    auto& list = Of<QListView>(main.lstColors);
    for (int row = 0; row < main.lstColors.Count(); ++row) {
      if (row == main.lstColors.Row()) continue;
      const QRect place = list.visualRect(list.model()->index(row, 0));
      const QRect square(place.topLeft(), QSize(place.height() + 2, place.height()));
      EXPECT_GE(ContrastIn(*list.viewport(), square), kVisible) << row;
    }
  }
};

TEST_F(SwatchContrastTest, SquaresStandOutOnTheSystemsOwnDesktop) { ExpectSquaresStandOut(); }

TEST_F(SwatchContrastTest, SquaresStandOutOnADarkDesktop) {
  const ColorsOfDesktop dark(replay::DarkPalette());
  ExpectSquaresStandOut();
}

TEST_F(SwatchContrastTest, TheAreasKeepTheColorThatTheyShow) {
  const ColorsOfDesktop dark(replay::DarkPalette());
  main.lstColors.Choose(2);
  Settle();
  QWidget& area = windows.Of(main.picFarbe);
  EXPECT_EQ(QColor(area.grab().toImage().pixel(area.width() / 2, area.height() / 2)), QColor(Qt::white));
}

// The page behind a picture changes with the desktop, what surrounds it stays plain.
TEST_F(SwatchContrastTest, APictureHasThePlainBackgroundOfTheWindow) {
  test.OpenHandling(VehicleLineOf("BUS"));
  main.SSTab1.ClickByHand(kPictureTab);
  const ColorsOfDesktop dark(replay::DarkPalette());
  QWidget& frame = windows.Of(main.picFrame);
  const QRgb window = windows.Of(main).palette().color(QPalette::Window).rgb();
  for (const QPoint place : {QPoint(20, 20), frame.rect().center(), QPoint(20, 200)}) {
    const QRect spot(frame.mapTo(frame.window(), place), QSize(1, 1));
    EXPECT_EQ(frame.window()->grab(spot).toImage().pixel(0, 0), window);
  }
}

class FocusContrastTest : public RealWindows {
 protected:
  // How many dots of the widget look plainly otherwise once it has the focus.
  static int DotsOfFocus(QWidget& widget) {
    const auto painted = [&widget] {
      Settle();
      const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
      return widget.window()->grab(place).toImage();
    };
    widget.clearFocus();
    const QImage before = painted();
    widget.setFocus();
    const QImage after = painted();
    int dots = 0;
    for (int y = 0; y < after.height(); ++y) {
      for (int x = 0; x < after.width(); ++x)
        dots += Contrast(before.pixel(x, y), after.pixel(x, y)) >= kVisible;
    }
    return dots;
  }

  // Of all four sides of each.
  void ExpectFocusIsSeen(Window& window, const std::vector<Control*>& controls) {
    window.SetVisible(true);
    Activate(window);
    for (const Control* control : controls) {
      auto* group = qobject_cast<QTabWidget*>(&windows.Of(*control));
      QWidget& widget = group == nullptr ? windows.Of(*control) : *group->tabBar();
      EXPECT_GE(DotsOfFocus(widget), 2 * widget.width()) << control->Name();
    }
  }

  void ExpectFocusIsSeenEverywhere() {
    test.OpenColors(kColors);
    ExpectFocusIsSeen(main,
                      {&main.cmbSprache, &main.cmbAutos, &main.SSTab3, &main.lstColors, &main.HScroll1});
    main.SSTab3.ClickByHand(kPairsTab);
    ExpectFocusIsSeen(main, {&main.lstCarColors, &main.cmbColor1});
    ExpectFocusIsSeen(test.exporter, {&test.exporter.lst1, &test.exporter.lst2});
    ExpectFocusIsSeen(test.error, {&test.error.lstErrors});
  }
};

TEST_F(FocusContrastTest, ListsBarsAndTabsShowItOnTheSystemsOwnDesktop) { ExpectFocusIsSeenEverywhere(); }

TEST_F(FocusContrastTest, ListsBarsAndTabsShowItOnADarkDesktop) {
  const ColorsOfDesktop dark(replay::DarkPalette());
  ExpectFocusIsSeenEverywhere();
}

}  // namespace

const std::vector<ViewCheck> kContrastChecks = {{"every text is readable", ExpectReadableTexts}};

}  // namespace wheelwright::testing
