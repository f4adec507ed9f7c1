#include "replay/SentEvents.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace wheelwright::replay {
namespace {

void SendMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButtons held,
               Qt::KeyboardModifiers modifiers) {
  QMouseEvent event(type, place, widget.mapToGlobal(QPointF(place)), Qt::LeftButton, held, modifiers);
  QCoreApplication::sendEvent(&widget, &event);
}

bool IsOnAKey(char32_t character) {
  constexpr char32_t kLastOfFirstPlane = 0xFFFF;
  return character <= kLastOfFirstPlane && QChar(static_cast<char16_t>(character)).isPrint();
}

void SendPress(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QCoreApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  QCoreApplication::sendEvent(&widget, &release);
}

}  // namespace

void SendClick(QWidget& widget, QPoint place, Qt::KeyboardModifiers modifiers) {
  SendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton, modifiers);
  SendMouse(widget, QEvent::MouseButtonRelease, place, Qt::NoButton, modifiers);
}

void SendKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  SendPress(widget, key, modifiers, "");
}

void SendCharacter(QWidget& widget, char32_t character) {
  const QString text = QString::fromUcs4(&character, 1);
  if (IsOnAKey(character)) {
    SendPress(widget, Qt::Key_unknown, Qt::NoModifier, text);
    return;
  }
  QInputMethodEvent commit;
  commit.setCommitString(text);
  QCoreApplication::sendEvent(&widget, &commit);
}

void SendRowClick(QAbstractItemView& view, int row, Qt::KeyboardModifiers modifiers) {
  const QModelIndex index = view.model()->index(row, 0);
  view.scrollTo(index);
  SendClick(*view.viewport(), view.visualRect(index).center(), modifiers);
}

}  // namespace wheelwright::replay
