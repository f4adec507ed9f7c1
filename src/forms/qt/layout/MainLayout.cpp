#include "forms/qt/layout/Layouts.h"
#include "forms/qt/widgets/ShownText.h"

#include <algorithm>

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

// The platform's keys, or the usual one where the platform has none.
QList<QKeySequence> KeysFor(QKeySequence::StandardKey key, const char* usual) {
  const QList<QKeySequence> keys = QKeySequence::keyBindings(key);
  return keys.isEmpty() ? QList<QKeySequence>{QKeySequence(usual)} : keys;
}

// Keys that work in the whole window, if the widget can be seen and used, and stand in its tool tip.
template <class WidgetType, class Action>
void GiveKeys(const QList<QKeySequence>& keys, WidgetType& widget, Action action) {
  auto* shortcut = new QShortcut(&widget);
  shortcut->setKeys(keys);
  QObject::connect(shortcut, &QShortcut::activated, &widget, action);
  const QString shown = QKeySequence::listToString(keys);
  widget.setToolTip(widget.toolTip().isEmpty() ? shown : widget.toolTip() + "; " + shown);
}

void GiveKeysToButtons(const FrmMain& main, const MirrorSet& mirrors) {
  const auto give = [&](QKeySequence::StandardKey key, const char* usual, const Button& button) {
    GiveKeys(KeysFor(key, usual), static_cast<QPushButton&>(mirrors.Of(button).Widget()),
             &QPushButton::click);
  };
  give(QKeySequence::Open, "Ctrl+O", main.cmdOpen);
  give(QKeySequence::Save, "Ctrl+S", main.cmdSave);
  give(QKeySequence::SaveAs, "Ctrl+Shift+S", main.cmdSaveAs);
  give(QKeySequence::HelpContents, "F1", main.cmdHelp);
  give(QKeySequence::Quit, "Ctrl+Q", main.cmdEnde);
}

// A person works on one field of many vehicles: the focus stays there, and what is typed replaces the
// text. Alt with an arrow would open a pick list that has the focus.
void GiveKeysToVehicles(QComboBox& vehicles) {
  // There a person finds one by typing its name.
  GiveKeys(KeysFor(QKeySequence::Find, "Ctrl+F"), vehicles,
           [&vehicles] { vehicles.setFocus(Qt::ShortcutFocusReason); });
  const auto giveStep = [&vehicles](const char* key, Qt::Key arrow) {
    GiveKeys({QKeySequence(key)}, vehicles, [&vehicles, arrow] {
      QKeyEvent press(QEvent::KeyPress, arrow, Qt::NoModifier);
      QCoreApplication::sendEvent(&vehicles, &press);
      if (auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget())) box->selectAll();
    });
  };
  giveStep("Alt+PgDown", Qt::Key_Down);
  giveStep("Alt+PgUp", Qt::Key_Up);
}

void GiveKeysToTabs(QTabBar& tabs) {
  const auto giveStep = [&tabs](const QList<QKeySequence>& keys, int step) {
    GiveKeys(keys, tabs, [&tabs, step] {
      tabs.setCurrentIndex((tabs.currentIndex() + step + tabs.count()) % tabs.count());
    });
  };
  giveStep({QKeySequence("Ctrl+Tab"), QKeySequence("Ctrl+PgDown")}, 1);
  giveStep({QKeySequence("Ctrl+Shift+Tab"), QKeySequence("Ctrl+PgUp")}, -1);
}

// Gives the button whose caption is the same in every language a letter that no other caption has.
// Captions that change ask for a new layout, and have all changed when it comes.
class FreeLetter : public QObject {
 public:
  FreeLetter(const FrmMain& main, QPushButton& button, QWidget* window)
      : QObject(window), main_(main), button_(button) {
    window->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) Mark();
    return false;
  }

 private:
  void Mark() {
    QString taken;
    for (const Control* control : main_.Controls()) {
      const auto* captioned = dynamic_cast<const Captioned*>(control);
      if (captioned == nullptr) continue;
      taken += QKeySequence::mnemonic(ShownCaption(captioned->Caption())).toString().right(1);
    }
    QString caption = ShownCaption(main_.cmdInfo.Caption());
    const auto isFree = [&](QChar letter) { return !taken.contains(letter, Qt::CaseInsensitive); };
    const auto* free = std::find_if(caption.cbegin(), caption.cend(), isFree);
    if (free != caption.cend()) caption.insert(free - caption.cbegin(), '&');
    button_.setText(caption);
  }

  const FrmMain& main_;
  QPushButton& button_;
};

QLayout* LeftColumn(FrmMain& main, QWidget* window, MirrorSet& mirrors) {
  auto* column = new QVBoxLayout;
  column->setSpacing(window->fontMetrics().height() / 2);
  column->addWidget(Framed(main.FrameSprache, main.cmbSprache, *window, mirrors));
  column->addWidget(Framed(main.FrameAutos, main.cmbAutos, *window, mirrors));
  column->addSpacing(column->spacing());
  for (Button* button : {&main.cmdOpen, &main.cmdSave, &main.cmdSaveAs, &main.cmdUndo, &main.cmdBackup}) {
    column->addWidget(&mirrors.Add(*button, window).Widget());
  }
  column->addStretch();
  return column;
}

// The group that shows takes the space of the greatest, so that the window stays as it is.
TabGroupMirror& AddGroup(TabGroup& group, QWidget* window, QGridLayout* spot, MirrorSet& mirrors) {
  TabGroupMirror& mirror = mirrors.Add(group, window);
  QSizePolicy policy = mirror.Widget().sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  mirror.Widget().setSizePolicy(policy);
  spot->addWidget(&mirror.Widget(), 0, 0);
  GiveKeysToTabs(*mirror.Widget().tabBar());
  return mirror;
}

QLayout* TabGroups(FrmMain& main, QWidget* window, MirrorSet& mirrors) {
  auto* spot = new QGridLayout;
  BuildHandlingPages(main, AddGroup(main.SSTab1, window, spot, mirrors), mirrors);
  BuildDefinitionPages(main, AddGroup(main.SSTab2, window, spot, mirrors), mirrors);
  BuildColorPages(main, AddGroup(main.SSTab3, window, spot, mirrors), mirrors);
  return spot;
}

QLayout* BottomRow(FrmMain& main, QWidget* window, MirrorSet& mirrors) {
  auto* row = new QHBoxLayout;
  row->setSpacing(window->fontMetrics().height() / 2);
  row->addWidget(&mirrors.Add(main.cmdHelp, window).Widget());
  row->addWidget(&mirrors.Add(main.cmdInfo, window).Widget());
  row->addStretch();
  row->addWidget(&mirrors.Add(main.cmdEnde, window).Widget());
  return row;
}

}  // namespace

void LayOutMain(FrmMain& main, QWidget* window, MirrorSet& mirrors) {
  auto* grid = new QGridLayout(window);
  grid->setHorizontalSpacing(window->fontMetrics().height());
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(0, 1);
  grid->addLayout(LeftColumn(main, window, mirrors), 0, 0, 2, 1);
  grid->addLayout(TabGroups(main, window, mirrors), 0, 1);
  grid->addLayout(BottomRow(main, window, mirrors), 1, 1);
  GiveKeysToButtons(main, mirrors);
  GiveKeysToVehicles(static_cast<QComboBox&>(mirrors.Of(main.cmbAutos).Widget()));
  mirrors.Of(main.cmdOpen).Widget().setFocus();
  new FreeLetter(main, static_cast<QPushButton&>(mirrors.Of(main.cmdInfo).Widget()), window);
}

}  // namespace wheelwright
