// How a failing test writes Qt's values. To be included before any comparison of them.
#pragma once

#include <ostream>

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>

// In the namespace of the types, where GoogleTest looks for them.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

inline void PrintTo(const QColor& color, std::ostream* out) { *out << color.name().toStdString(); }

inline void PrintTo(const QSize& size, std::ostream* out) { *out << size.width() << " x " << size.height(); }

inline void PrintTo(const QRect& rect, std::ostream* out) {
  *out << rect.x() << ", " << rect.y() << ", ";
  PrintTo(rect.size(), out);
}
