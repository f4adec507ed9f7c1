#include "replay/WidgetHands.h"

#include "forms/qt/mirrors/Rows.h"
#include "replay/OnScreen.h"
#include "replay/SentEvents.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>

namespace wheelwright::replay {
namespace {

QPoint IndicatorOf(QCheckBox& box) {
  QStyleOptionButton option;
  option.initFrom(&box);
  return box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box).center();
}

// The row behind the last of the run of rows that the first one begins.
int EndOfRun(const std::vector<int>& rows) {
  int end = rows.front();
  for (const int row : rows) {
    if (row != end) break;
    ++end;
  }
  return end;
}

// Marks one run of rows and nothing else.
void MarkRun(RowView& view, int first, int end) {
  SendRowClick(view, first);
  if (end - first > 1) SendRowClick(view, end - 1, Qt::ShiftModifier);
}

void ToggleRows(RowView& view, const std::vector<int>& wanted) {
  const std::vector<int> marked = view.SelectedRows();
  std::vector<int> different;
  std::set_symmetric_difference(marked.begin(), marked.end(), wanted.begin(), wanted.end(),
                                std::back_inserter(different));
  for (const int row : different) SendRowClick(view, row, Qt::ControlModifier);
}

}  // namespace

QWidget& WidgetHands::Reached(const Control& control) const {
  QCoreApplication::processEvents();
  QWidget& widget = windows_.Of(control);
  widget.setFocus(Qt::OtherFocusReason);
  return widget;
}

void WidgetHands::Click(Button& button) {
  auto& widget = Reach<QPushButton>(button);
  SendClick(widget, widget.rect().center());
}

void WidgetHands::Click(CheckBox& box) {
  auto& widget = Reach<QCheckBox>(box);
  SendClick(widget, IndicatorOf(widget));
}

void WidgetHands::Empty(TextBox& box) {
  auto& widget = Reach<QLineEdit>(box);
  SendKey(widget, Qt::Key_A, Qt::ControlModifier);
  SendKey(widget, Qt::Key_Delete);
}

void WidgetHands::Append(TextBox& box, const std::string& characters) {
  auto& widget = Reach<QLineEdit>(box);
  for (const char32_t character : QString::fromStdString(characters).toStdU32String()) {
    SendKey(widget, Qt::Key_End);
    SendCharacter(widget, character);
  }
}

void WidgetHands::EraseLast(TextBox& box) {
  auto& widget = Reach<QLineEdit>(box);
  SendKey(widget, Qt::Key_End);
  SendKey(widget, Qt::Key_Backspace);
}

void WidgetHands::Choose(PickList& list, int row) {
  auto& widget = Reach<QComboBox>(list);
  widget.showPopup();
  widget.view()->setCurrentIndex(widget.model()->index(row, 0));
  SendKey(*widget.view(), Qt::Key_Return);
}

void WidgetHands::Choose(ListBox& list, int row) { SendRowClick(Reach<RowView>(list), row); }

void WidgetHands::Mark(MarkList& list, const std::vector<int>& rows) {
  auto& widget = Reach<RowView>(list);
  std::vector<int> wanted = rows;
  std::sort(wanted.begin(), wanted.end());
  wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
  if (!wanted.empty()) {
    MarkRun(widget, wanted.front(), EndOfRun(wanted));
  } else if (!widget.SelectedRows().empty()) {
    MarkRun(widget, 0, 1);
  }
  ToggleRows(widget, wanted);
}

void WidgetHands::Scroll(ScrollBar& bar, int value) { Reach<QScrollBar>(bar).setValue(value); }

void WidgetHands::ClickTab(TabGroup& group, int tab) {
  QTabBar& bar = *Reach<QTabWidget>(group).tabBar();
  SendClick(bar, bar.tabRect(tab).center());
}

void WidgetHands::Close(Window& window) { windows_.Of(window).close(); }

void WidgetHands::Shoot(Window& window, const std::string& file) {
  // A layout asks for the next one: of the window, of the view in it, of the view with its scroll
  // bar.
  constexpr int kSteps = 4;
  for (int step = 0; step < kSteps; ++step) QCoreApplication::processEvents();
  if (!windows_.Of(window).grab().save(QString::fromStdString(file))) {
    throw std::runtime_error("can't write the picture " + file);
  }
}

std::string WidgetHands::Difference(const Control& control) {
  return DifferenceOnScreen(control, windows_.Of(control));
}

}  // namespace wheelwright::replay
