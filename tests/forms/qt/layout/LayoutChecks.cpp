// Nothing is cut off and nothing lies over something else.
#include "forms/qt/layout/ViewChecks.h"
#include "screen/Fields.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTreeView>

namespace wheelwright::testing {
namespace {

int WidthOf(const QString& caption, const QWidget& widget) {
  return widget.fontMetrics().size(Qt::TextShowMnemonic, caption).width();
}

bool Fits(const QPushButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  const QStyle& style = *button.style();
  const QRect room = style.subElementRect(QStyle::SE_PushButtonContents, &option, &button);
  return WidthOf(button.text(), button) <= room.width() && button.fontMetrics().height() <= room.height();
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

bool LieApart(const QWidget& one, const QWidget& other) {
  return one.isAncestorOf(&other) || other.isAncestorOf(&one) || !PlaceOf(one).intersects(PlaceOf(other));
}

void ExpectWholeCaptions(const View& view) {
  for (const Control* control : view.showing) {
    const QWidget& widget = view.Of(*control);
    EXPECT_TRUE(ShowsWhole(widget)) << control->Name() << " in " << widget.width() << " by "
                                    << widget.height();
  }
}

void ExpectControlsApart(const View& view) {
  for (const Control* control : view.showing) {
    const QWidget& widget = view.Of(*control);
    EXPECT_TRUE(view.window.rect().contains(PlaceOf(widget))) << control->Name();
    EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry())) << control->Name();
    for (const Control* other : view.showing) {
      if (other == control) break;
      EXPECT_TRUE(LieApart(widget, view.Of(*other))) << control->Name() << " and " << other->Name();
    }
  }
}

// A picture in its frame stands in the middle.
void ExpectMargins(const View& view) {
  if (view.Of(view.main.picFrame).isVisible() || view.Of(view.main.picFrame2).isVisible()) return;
  const int letter = view.window.fontMetrics().height();
  for (const auto* tabs : view.window.findChildren<QTabWidget*>()) {
    if (!tabs->isVisible()) continue;
    const auto& page = static_cast<const QScrollArea&>(*tabs->currentWidget());
    const QRect room = page.viewport()->rect().adjusted(letter, letter, -letter, -letter);
    EXPECT_TRUE(room.contains(page.widget()->childrenRect())) << tabs->objectName().toStdString();
  }
}

// Calls the visitor for each two fields of one page that show, the one of the higher row first.
template <class Fields, class Visitor>
void ForTwoRows(const Fields& fields, const View& view, const Visitor& visit) {
  for (const auto& upper : fields) {
    for (const auto& lower : fields) {
      if (upper.tab != lower.tab) continue;
      const QWidget& above = view.Of(LabelsOf(view.main, upper).label);
      const QWidget& below = view.Of(LabelsOf(view.main, lower).label);
      if (upper.tabRow >= lower.tabRow || !above.isVisible() || !below.isVisible()) continue;
      visit(above.geometry(), below.geometry(), lower.tabRow - upper.tabRow);
    }
  }
}

void ExpectRowsInOrder(const View& view) {
  const auto expectBelow = [](QRect above, QRect below, int) { EXPECT_LT(above.bottom(), below.top()); };
  ForTwoRows(kHandlingFields, view, expectBelow);
  ForTwoRows(kDefinitionFields, view, expectBelow);
}

// No label is so long that it moves its input: those of a page stand where they stand in other languages.
void ExpectInputsInPlace(const View& view) {
  const auto expectInPlace = [&](const Control& label, int characters) {
    const auto& name = static_cast<const QLabel&>(view.Of(label));
    if (!name.isVisible()) return;
    const int room = characters * name.fontMetrics().averageCharWidth() + name.fontMetrics().height();
    EXPECT_EQ(PlaceOf(*name.buddy()).left(), PlaceOf(name).left() + room) << label.Name();
  };
  for (const auto& field : kHandlingFields) expectInPlace(LabelsOf(view.main, field).label, 25);
  for (const auto& field : kDefinitionFields) expectInPlace(LabelsOf(view.main, field).label, 25);
  expectInPlace(view.main.lblColorName, 10);
}

// So that no steady hand is needed.
void ExpectLeastHeights(const View& view) {
  for (const Control* control : view.showing) {
    QWidget& widget = view.Of(*control);
    const auto* box = qobject_cast<QComboBox*>(&widget);
    const auto* rows = box == nullptr ? qobject_cast<QAbstractItemView*>(&widget) : box->view();
    if (rows != nullptr && rows->model()->rowCount() > 0) {
      EXPECT_GE(rows->sizeHintForRow(0), 20) << control->Name();
    }
    if (qobject_cast<QPushButton*>(&widget) != nullptr || qobject_cast<QScrollBar*>(&widget) != nullptr) {
      EXPECT_GE(widget.height(), 24) << control->Name();
    }
  }
}

}  // namespace

std::set<int> RowDistances(const View& view) {
  std::set<int> distances;
  const auto collect = [&](QRect above, QRect below, int rows) {
    if (rows == 1) distances.insert(below.top() - above.top());
  };
  ForTwoRows(kHandlingFields, view, collect);
  ForTwoRows(kDefinitionFields, view, collect);
  return distances;
}

const std::vector<ViewCheck> kLayoutChecks = {
    {"no caption is cut off", ExpectWholeCaptions},
    {"no two controls lie over each other, and all inside their window", ExpectControlsApart},
    {"a letter's height is free around what stands on a tab", ExpectMargins},
    {"the inputs stand in the same place in all languages", ExpectInputsInPlace},
    {"rows of lists, buttons and bars are high enough", ExpectLeastHeights},
    {"the rows of a tab stand in their order", ExpectRowsInOrder},
};

}  // namespace wheelwright::testing
