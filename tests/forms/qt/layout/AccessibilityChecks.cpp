// Every input has its name, its key and its turn.
#include "forms/qt/layout/ViewChecks.h"
#include "replay/OnScreen.h"
#include "screen/Fields.h"

#include <gtest/gtest.h>
#include <map>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QTabWidget>

namespace wheelwright::testing {
namespace {

bool IsInput(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QScrollBar*>(&widget) != nullptr ||
         qobject_cast<const QCheckBox*>(&widget) != nullptr;
}

QString SpokenNameOf(QWidget& widget) { return SpokenName(*QAccessible::queryAccessibleInterface(&widget)); }

// The captions on screen that can stand for an input: of its label, of the frame around it, of its
// tab, of its window, or its own.
QStringList CaptionsFor(const QWidget& input) {
  QStringList captions;
  for (const QLabel* label : input.window()->findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() == &input) captions += label->text();
  }
  for (const QWidget* around = &input; around != nullptr; around = around->parentWidget()) {
    if (const auto* frame = qobject_cast<const QGroupBox*>(around)) captions += frame->title();
    if (const auto* tabs = qobject_cast<const QTabWidget*>(around)) {
      captions += tabs->tabText(tabs->currentIndex());
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(around)) captions += button->text();
    if (around->isWindow()) captions += around->windowTitle();
  }
  return captions;
}

// The caption nearest to the input, as it is read.
QString NearestCaption(const QWidget& input) {
  for (const QString& caption : CaptionsFor(input)) {
    if (!caption.isEmpty()) return replay::AsRead(caption);
  }
  return {};
}

void ExpectSpokenByNearestCaption(const View& view) {
  for (const Control* control : view.showing) {
    QWidget& widget = view.Of(*control);
    if (!IsInput(widget)) continue;
    EXPECT_FALSE(SpokenNameOf(widget).isEmpty()) << control->Name();
    EXPECT_EQ(SpokenNameOf(widget), NearestCaption(widget)) << control->Name();
  }
}

void ExpectRow(const View& view, const Control* input, const Label& label, const Label* info) {
  if (input == nullptr || !view.Of(*input).isVisible()) return;
  QWidget& widget = view.Of(*input);
  EXPECT_EQ(static_cast<QLabel&>(view.Of(label)).buddy(), &widget) << input->Name();
  EXPECT_EQ(SpokenNameOf(widget), replay::AsRead(label.Caption())) << input->Name();
  if (info == nullptr) return;
  EXPECT_EQ(widget.accessibleDescription(), replay::AsRead(info->Caption())) << input->Name();
}

template <class Fields>
void ExpectLabelledFields(const View& view, const Fields& fields) {
  for (const auto& field : fields) {
    const auto& [label, hint] = LabelsOf(view.main, field);
    const Label* const info = hint ? &*hint : nullptr;
    const Label& named = label;
    const auto expect = [&](auto input) { ExpectRow(view, &(view.main.*input), named, info); };
    std::visit(expect, field.input);
  }
}

void ExpectLabelledRows(const View& view) {
  ExpectLabelledFields(view, kHandlingFields);
  ExpectLabelledFields(view, kDefinitionFields);
  ExpectRow(view, &view.main.cmbExtra1, view.main.txtExtra1.label, &view.main.lblExtra1Info);
}

// The letter behind a single "&"; nothing if there is none.
QString Mnemonic(const QString& caption) {
  const QString key = QKeySequence::mnemonic(caption).toString();
  return key.section('+', -1);
}

QStringList MarkedCaptions(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return label->buddy() == nullptr ? QStringList() : QStringList{label->text()};
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return {button->text()};
  if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) return {frame->title()};
  QStringList captions;
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
    for (int tab = 0; tab < tabs->count(); ++tab) captions += tabs->tabText(tab);
  }
  return captions;
}

void ExpectDifferentKeys(const View& view) {
  std::map<QString, QString> owners;
  for (const Control* control : view.showing) {
    for (const QString& caption : MarkedCaptions(view.Of(*control))) {
      const QString key = Mnemonic(caption);
      if (key.isEmpty()) continue;
      EXPECT_TRUE(owners.emplace(key, caption).second)
          << key.toStdString() << ": " << caption.toStdString() << " and " << owners[key].toStdString();
    }
  }
}

// From one control to the next it goes on in the same row, down to a row below, or to a column
// right of all that came before.
void ExpectReadingOrder(const std::vector<QWidget*>& reached) {
  QRect before;
  QRect column;
  for (const QWidget* widget : reached) {
    const QRect place = PlaceOf(*widget);
    const bool isBelow = before.isNull() || place.top() > before.bottom();
    const bool isInRow = place.left() > before.right() && place.top() <= before.bottom();
    const bool isNewColumn = place.left() > column.right();
    EXPECT_TRUE(isBelow || isInRow || isNewColumn) << widget->objectName().toStdString();
    column = isNewColumn && !isBelow ? place : column.united(place);
    before = place;
  }
}

// The widgets that the Tab key reaches, in its order.
std::vector<QWidget*> Reached(QWidget& window) {
  std::vector<QWidget*> reached;
  for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
    const bool takesTab = (next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr;
    if (takesTab && next->isVisible() && next->isEnabled() && next->window() == &window) {
      reached.push_back(next);
    }
  }
  return reached;
}

bool IsInTabGroup(const View& view, const QWidget& widget) {
  return view.Of(view.main.SSTab1).isAncestorOf(&widget) || view.Of(view.main.SSTab2).isAncestorOf(&widget) ||
         view.Of(view.main.SSTab3).isAncestorOf(&widget);
}

// What the Tab key reaches outside the pages, in order.
QStringList BesideThePages(const View& view) {
  if (!view.IsMain()) return {};
  if (!view.main.cmdSave.IsEnabled()) {
    return {"cmbSprache", "cmdOpen", "cmdHelp", "cmdInfo", "cmdEnde"};
  }
  return {"cmbSprache", "cmbAutos",  "cmdOpen", "cmdSave", "cmdSaveAs",
          "cmdUndo",    "cmdBackup", "cmdHelp", "cmdInfo", "cmdEnde"};
}

void ExpectTabOrder(const View& view) {
  std::vector<QWidget*> page;
  QStringList beside;
  for (QWidget* widget : Reached(view.window)) {
    if (!view.IsMain() || IsInTabGroup(view, *widget)) {
      page.push_back(widget);
    } else {
      beside += widget->objectName();
    }
  }
  ExpectReadingOrder(page);
  EXPECT_EQ(beside, BesideThePages(view));
}

}  // namespace

const std::vector<ViewCheck> kAccessibilityChecks = {
    {"every input is spoken of by the caption next to it", ExpectSpokenByNearestCaption},
    {"every row has its label as buddy and its hint as description", ExpectLabelledRows},
    {"no two captions that show together have the same key", ExpectDifferentKeys},
    {"the Tab key goes through the rows from top to bottom", ExpectTabOrder},
};

}  // namespace wheelwright::testing
