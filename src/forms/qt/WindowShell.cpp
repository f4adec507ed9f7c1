#include "forms/qt/WindowShell.h"

#include "forms/qt/QtText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QShortcut>

namespace wheelwright {

WindowShell::WindowShell(Window& window, EventEdge& edge, QWidget* owner)
    : QWidget(owner, Qt::Window), window_(window), edge_(edge) {
  setObjectName(QString::fromStdString(window.Name()));
  setAttribute(Qt::WA_QuitOnClose, owner == nullptr);
  setWindowTitle(ShownTitle(window.Title()));
  window.notice = [this] { Follow(); };
  if (owner == nullptr) return;
  QObject::connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this,
                   &QWidget::close);
}

WindowShell::~WindowShell() { window_.notice = nullptr; }

void WindowShell::Follow() {
  setWindowTitle(ShownTitle(window_.Title()));
  if (isHidden() == window_.IsVisible()) setVisible(window_.IsVisible());
}

void WindowShell::closeEvent(QCloseEvent* event) {
  edge_.Enter([this] { Run(window_.closeRequested); });
  event->setAccepted(!window_.IsVisible());
}

QWidget* WindowInUse() {
  if (QApplication::activeWindow() != nullptr) return QApplication::activeWindow();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool isMain = dynamic_cast<WindowShell*>(window) != nullptr && !window->parentWidget();
    if (isMain && window->isVisible()) return window;
  }
  return nullptr;
}

}  // namespace wheelwright
