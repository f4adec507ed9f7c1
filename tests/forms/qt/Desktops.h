// Desktops of other colours and with another font, for as long as the objects live.
#pragma once

#include "forms/qt/Settle.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

namespace wheelwright::testing {

class ColorsOfDesktop {
 public:
  explicit ColorsOfDesktop(const QPalette& palette) : before_(QApplication::palette()) {
    QApplication::setPalette(palette);
    Settle();
  }
  ColorsOfDesktop(const ColorsOfDesktop&) = delete;
  ColorsOfDesktop& operator=(const ColorsOfDesktop&) = delete;
  ~ColorsOfDesktop() { QApplication::setPalette(before_); }

 private:
  QPalette before_;
};

class FontOfDesktop {
 public:
  explicit FontOfDesktop(double factor) : before_(QApplication::font()) {
    QFont font = before_;
    font.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(font);
  }
  FontOfDesktop(const FontOfDesktop&) = delete;
  FontOfDesktop& operator=(const FontOfDesktop&) = delete;
  ~FontOfDesktop() { QApplication::setFont(before_); }

 private:
  QFont before_;
};

}  // namespace wheelwright::testing
