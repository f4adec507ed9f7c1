// In every language nothing is cut off and nothing lies over something else.
#include "forms/qt/WindowWalk.h"
#include "screen/DefinitionFields.h"
#include "screen/HandlingFields.h"

#include <set>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTreeView>

namespace wheelwright::testing {
namespace {

class LayoutTest : public WindowWalk {};

int WidthOf(const QString& caption, const QWidget& widget) {
  return widget.fontMetrics().size(Qt::TextShowMnemonic, caption).width();
}

bool Fits(const QPushButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  const QStyle& style = *button.style();
  const QRect room = style.subElementRect(QStyle::SE_PushButtonContents, &option, &button);
  return WidthOf(button.text(), button) <= room.width() &&
         button.fontMetrics().height() <= room.height();
}

bool Fits(const QTabBar& bar) {
  for (int tab = 0; tab < bar.count(); ++tab) {
    const QRect place = bar.tabRect(tab);
    const int margin = bar.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &bar);
    if (place.width() < WidthOf(bar.tabText(tab), bar) + margin) return false;
    if (!bar.rect().contains(place.center()) || place.right() > bar.width()) return false;
  }
  return true;
}

bool Fits(const QTreeView& report) {
  for (int column = 0; column < report.model()->columnCount(); ++column) {
    const QString header = report.model()->headerData(column, Qt::Horizontal).toString();
    if (WidthOf(header, report) > report.header()->sectionSize(column)) return false;
  }
  return true;
}

// The entry that is shown of a list whose entries are the program's own.
bool Fits(const QComboBox& box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  option.subControls = QStyle::SC_All;
  const QRect room =
      box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
  return box.fontMetrics().horizontalAdvance(box.currentText()) <= room.width();
}

bool ShowsWhole(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) return Fits(*button);
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) return Fits(*tabs->tabBar());
  if (const auto* report = qobject_cast<const QTreeView*>(&widget)) return Fits(*report);
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) return Fits(*box);
  const bool isCaptioned = qobject_cast<const QLabel*>(&widget) != nullptr ||
                           qobject_cast<const QCheckBox*>(&widget) != nullptr ||
                           qobject_cast<const QGroupBox*>(&widget) != nullptr;
  const QSize needed = widget.minimumSizeHint();
  const bool isWideEnough = !isCaptioned || widget.width() >= needed.width();
  return isWideEnough && widget.height() >= needed.height();
}

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

bool LieApart(const QWidget& one, const QWidget& other) {
  return one.isAncestorOf(&other) || other.isAncestorOf(&one) ||
         !PlaceOf(one).intersects(PlaceOf(other));
}

TEST_P(LayoutTest, NoCaptionIsCutOff) {
  Walk([this](Window& plain, QWidget&) {
    for (const QWidget* widget : Showing(plain)) {
      EXPECT_TRUE(ShowsWhole(*widget)) << widget->objectName().toStdString() << " in "
                                       << ::testing::PrintToString(widget->size());
    }
  });
}

TEST_P(LayoutTest, NoTwoControlsLieOverEachOtherAndAllInsideTheirWindow) {
  Walk([this](Window& plain, QWidget& window) {
    const std::vector<QWidget*> showing = Showing(plain);
    for (std::size_t i = 0; i < showing.size(); ++i) {
      const QWidget& widget = *showing[i];
      EXPECT_TRUE(window.rect().contains(PlaceOf(widget))) << widget.objectName().toStdString();
      EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry()))
          << widget.objectName().toStdString();
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_TRUE(LieApart(widget, *showing[j])) << widget.objectName().toStdString() << " and "
                                                   << showing[j]->objectName().toStdString();
      }
    }
  });
}

// Of two fields that show, the one of the lower row stands lower.
template <class Fields>
void ExpectRowsInOrder(const Fields& fields, const std::function<QWidget&(const Label&)>& of,
                       const FrmMain& main) {
  for (const auto& upper : fields) {
    for (const auto& lower : fields) {
      if (upper.label == nullptr || lower.label == nullptr || upper.tab != lower.tab) continue;
      const QWidget& above = of(main.*upper.label);
      const QWidget& below = of(main.*lower.label);
      if (upper.tabRow >= lower.tabRow || !above.isVisible() || !below.isVisible()) continue;
      EXPECT_LT(above.geometry().bottom(), below.geometry().top()) << upper.name;
    }
  }
}

TEST_P(LayoutTest, TheRowsOfATabStandInTheirOrder) {
  const auto of = [this](const Label& label) -> QWidget& { return windows.Of(label); };
  Walk([&](Window&, QWidget&) {
    ExpectRowsInOrder(kHandlingFields, of, main);
    ExpectRowsInOrder(kDefinitionFields, of, main);
  });
}

// How far the middles of two rows that follow each other are apart.
template <class Fields>
void CollectDistances(const Fields& fields, const std::function<QWidget&(const Label&)>& of,
                      const FrmMain& main, std::set<int>& distances) {
  for (const auto& upper : fields) {
    for (const auto& lower : fields) {
      if (upper.label == nullptr || lower.label == nullptr || upper.tab != lower.tab) continue;
      const QWidget& above = of(main.*upper.label);
      const QWidget& below = of(main.*lower.label);
      if (lower.tabRow != upper.tabRow + 1 || !above.isVisible() || !below.isVisible()) continue;
      distances.insert(below.geometry().top() - above.geometry().top());
    }
  }
}

TEST_P(LayoutTest, TheRowsOfAllTabsKeepTheSameDistance) {
  const auto of = [this](const Label& label) -> QWidget& { return windows.Of(label); };
  std::set<int> distances;
  Walk([&](Window&, QWidget&) {
    CollectDistances(kHandlingFields, of, main, distances);
    CollectDistances(kDefinitionFields, of, main, distances);
  });
  EXPECT_EQ(distances.size(), 1u) << ::testing::PrintToString(distances);
}

INSTANTIATE_TEST_SUITE_P(Languages, LayoutTest,
                         ::testing::Combine(::testing::ValuesIn(Languages()),
                                            ::testing::Values(1.0, 1.5, 2.0)),
                         NameOfSetting);

}  // namespace
}  // namespace wheelwright::testing
