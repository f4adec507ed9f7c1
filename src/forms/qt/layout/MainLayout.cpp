#include "forms/qt/layout/Layouts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

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

// The platform's keys, or the usual one where the platform has none.
QShortcut* Shortcut(QKeySequence::StandardKey key, const char* usual, QWidget* window) {
  auto* shortcut = new QShortcut(window);
  const QList<QKeySequence> keys = QKeySequence::keyBindings(key);
  shortcut->setKeys(keys.isEmpty() ? QList<QKeySequence>{QKeySequence(usual)} : keys);
  return shortcut;
}

// A disabled button takes no click from its key either.
void GiveKey(QShortcut* key, const Button& button, const MirrorSet& mirrors) {
  auto* clicked = &static_cast<QPushButton&>(mirrors.Of(button).Widget());
  QObject::connect(key, &QShortcut::activated, clicked, &QPushButton::click);
}

void GiveKeys(const FrmMain& main, QWidget* window, const MirrorSet& mirrors) {
  GiveKey(Shortcut(QKeySequence::Open, "Ctrl+O", window), main.cmdOpen, mirrors);
  GiveKey(Shortcut(QKeySequence::Save, "Ctrl+S", window), main.cmdSave, mirrors);
  GiveKey(Shortcut(QKeySequence::SaveAs, "Ctrl+Shift+S", window), main.cmdSaveAs, mirrors);
  GiveKey(Shortcut(QKeySequence::HelpContents, "F1", window), main.cmdHelp, mirrors);
  GiveKey(Shortcut(QKeySequence::Quit, "Ctrl+Q", window), main.cmdEnde, mirrors);
  // In the list of vehicles a person finds one by typing its name.
  QWidget* vehicles = &mirrors.Of(main.cmbAutos).Widget();
  QObject::connect(Shortcut(QKeySequence::Find, "Ctrl+F", window), &QShortcut::activated, vehicles,
                   [vehicles] { vehicles->setFocus(Qt::ShortcutFocusReason); });
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
  GiveKeys(main, window, mirrors);
}

}  // namespace wheelwright
