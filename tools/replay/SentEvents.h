// Single acts of a keyboard and a mouse, sent to a widget as the toolkit itself would.
#pragma once

#include <QAbstractItemView>
#include <QPoint>
#include <QString>
#include <QWidget>

namespace wheelwright::replay {

void SendClick(QWidget& widget, QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

void SendKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// One character, by a key or, where no key has it, by an input method.
void SendCharacter(QWidget& widget, char32_t character);

// A click on a row, which is brought into sight first.
void SendRowClick(QAbstractItemView& view, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

}  // namespace wheelwright::replay
