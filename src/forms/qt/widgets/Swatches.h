// Colours on screen, each with an edge: an area, and the small squares beside a name.
#pragma once

#include <vector>

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QSize>
#include <QWidget>

namespace wheelwright {

// A thin line inside the borders of a place, which stands out from light and dark backgrounds.
void PaintEdge(QPainter& painter, const QRect& place);

// An area in one colour, plain background while there is none.
class ColorArea : public QWidget {
 public:
  using QWidget::QWidget;

  void Fill(const QColor& color);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_;
};

// A square for each colour, side by side. Sharp at every size.
QIcon SwatchIcon(const std::vector<QColor>& colors);

// The size for a list's rows: a little more than the letters beside it, so that the squares of two
// rows don't touch.
QSize SwatchIconSize(const QWidget& list, int colors = 1);

}  // namespace wheelwright
