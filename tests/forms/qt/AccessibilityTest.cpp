// In every language every input has its name, its key and its turn.
#include "forms/qt/QtText.h"
#include "forms/qt/WindowWalk.h"
#include "screen/DefinitionFields.h"
#include "screen/HandlingFields.h"

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

class AccessibilityTest : public WindowWalk {
 protected:
  QString CaptionOf(const Label& label) { return WithoutMarks(ShownCaption(label.Caption())); }
  bool IsInTabGroup(const QWidget& widget);
  // What the Tab key reaches outside the pages, in order.
  QStringList BesideThePages();
  void ExpectRow(const Control* input, const Label& label, const Label* info);
};

bool IsInput(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QScrollBar*>(&widget) != nullptr ||
         qobject_cast<const QCheckBox*>(&widget) != nullptr;
}

// Some systems speak a combo box's text first and find its name by its label.
QString SpokenName(QWidget& widget) {
  if (qobject_cast<const QComboBox*>(&widget) != nullptr) return widget.accessibleName();
  return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

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
    if (const auto* button = qobject_cast<const QAbstractButton*>(around))
      captions += button->text();
    if (around->isWindow()) captions += around->windowTitle();
  }
  return captions;
}

// The caption nearest to the input, as it is read.
QString NearestCaption(const QWidget& input) {
  for (const QString& caption : CaptionsFor(input)) {
    if (!caption.isEmpty()) return WithoutMarks(caption);
  }
  return {};
}

TEST_P(AccessibilityTest, EveryInputIsSpokenOfByTheCaptionNextToIt) {
  Walk([this](Window& plain, QWidget&) {
    for (QWidget* widget : Showing(plain)) {
      if (!IsInput(*widget)) continue;
      EXPECT_FALSE(SpokenName(*widget).isEmpty()) << widget->objectName().toStdString();
      EXPECT_EQ(SpokenName(*widget), NearestCaption(*widget)) << widget->objectName().toStdString();
    }
  });
}

void AccessibilityTest::ExpectRow(const Control* input, const Label& label, const Label* info) {
  if (input == nullptr || !windows.Of(*input).isVisible()) return;
  EXPECT_EQ(Of<QLabel>(label).buddy(), &windows.Of(*input)) << input->Name();
  EXPECT_EQ(SpokenName(windows.Of(*input)), CaptionOf(label)) << input->Name();
  if (info == nullptr) return;
  EXPECT_EQ(windows.Of(*input).accessibleDescription(), CaptionOf(*info)) << input->Name();
}

TEST_P(AccessibilityTest, EveryRowHasItsLabelAsBuddyAndItsHintAsDescription) {
  Walk([this](Window&, QWidget&) {
    for (const HandlingField& field : kHandlingFields) {
      if (field.label == nullptr) continue;
      const Label& label = main.*field.label;
      const Label* info = field.info == nullptr ? nullptr : &(main.*field.info);
      if (field.text != nullptr) ExpectRow(&(main.*field.text), label, info);
      if (field.pick != nullptr) ExpectRow(&(main.*field.pick), label, info);
      if (field.tick != nullptr) ExpectRow(&(main.*field.tick), label, info);
    }
    for (const DefinitionField& field : kDefinitionFields) {
      const Label* info = &(main.*field.info);
      if (field.text != nullptr) ExpectRow(&(main.*field.text), main.*field.label, info);
      if (field.pick != nullptr) ExpectRow(&(main.*field.pick), main.*field.label, info);
    }
    ExpectRow(&main.cmbExtra1, main.lblExtra1, &main.lblExtra1Info);
  });
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

TEST_P(AccessibilityTest, NoTwoCaptionsThatShowTogetherHaveTheSameKey) {
  Walk([this](Window& plain, QWidget&) {
    std::map<QString, QString> owners;
    for (const QWidget* widget : Showing(plain)) {
      for (const QString& caption : MarkedCaptions(*widget)) {
        const QString key = Mnemonic(caption);
        if (key.isEmpty()) continue;
        EXPECT_TRUE(owners.emplace(key, caption).second)
            << key.toStdString() << ": " << caption.toStdString() << " and "
            << owners[key].toStdString();
      }
    }
  });
}

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
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

bool AccessibilityTest::IsInTabGroup(const QWidget& widget) {
  return windows.Of(main.SSTab1).isAncestorOf(&widget) ||
         windows.Of(main.SSTab2).isAncestorOf(&widget) ||
         windows.Of(main.SSTab3).isAncestorOf(&widget);
}

QStringList AccessibilityTest::BesideThePages() {
  if (!main.cmdSave.IsEnabled()) return {"cmbSprache", "cmdOpen", "cmdHelp", "cmdInfo", "cmdEnde"};
  return {"cmbSprache", "cmbAutos",  "cmdOpen", "cmdSave", "cmdSaveAs",
          "cmdUndo",    "cmdBackup", "cmdHelp", "cmdInfo", "cmdEnde"};
}

TEST_P(AccessibilityTest, TheTabKeyGoesThroughTheRowsFromTopToBottom) {
  Walk([this](Window& plain, QWidget& window) {
    std::vector<QWidget*> page;
    QStringList beside;
    for (QWidget* widget : Reached(window)) {
      if (&plain != &main || IsInTabGroup(*widget)) {
        page.push_back(widget);
      } else {
        beside += widget->objectName();
      }
    }
    ExpectReadingOrder(page);
    EXPECT_EQ(beside, &plain == &main ? BesideThePages() : QStringList());
  });
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessibilityTest,
                         ::testing::Combine(::testing::ValuesIn(Languages()),
                                            ::testing::Values(1.0)),
                         NameOfSetting);

}  // namespace
}  // namespace wheelwright::testing
