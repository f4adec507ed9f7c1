// The colours of a dark desktop, as the platforms' own dark themes have them.
#pragma once

#include <QPalette>

namespace wheelwright::replay {

inline QPalette DarkPalette() {
  const QColor window(0x2B, 0x2B, 0x2B);
  const QColor base(0x1E, 0x1E, 0x1E);
  const QColor text(0xE6, 0xE6, 0xE6);
  const QColor dim(0x80, 0x80, 0x80);
  const QColor accent(0x2A, 0x6F, 0xC4);
  // Light, mid and dark shades are derived from the buttons' and the window's.
  QPalette palette(QColor(0x3A, 0x3A, 0x3A), window);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, dim);
  }
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::Disabled, QPalette::Base, window);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, base);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, dim);
  palette.setColor(QPalette::PlaceholderText, dim);
  return palette;
}

}  // namespace wheelwright::replay
