// Colours on screen: a framed area, and the small square beside a colour's name.
#pragma once

#include <QColor>
#include <QFrame>
#include <QIcon>
#include <QSize>

namespace wheelwright {

// A framed area in one colour, plain background while there is none.
class ColorArea : public QFrame {
 public:
  explicit ColorArea(QWidget* parent);

  void Fill(const QColor& color);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_;
};

// Sharp at every size, with an edge that stands out from light and dark backgrounds.
QIcon SwatchIcon(const QColor& color);

// The size for a list's rows: a little more than the letters beside it, so that the squares of two
// rows don't touch.
QSize SwatchIconSize(const QWidget& list);

}  // namespace wheelwright
