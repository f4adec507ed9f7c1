#include "forms/qt/widgets/Swatches.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPalette>

namespace wheelwright {
namespace {

constexpr int kMargin = 2;

void PaintSwatch(QPainter& painter, const QRect& place, const QColor& color) {
  if (color.isValid()) painter.fillRect(place, color);
  PaintEdge(painter, place);
}

class SwatchEngine : public QIconEngine {
 public:
  explicit SwatchEngine(std::vector<QColor> colors) : colors_(std::move(colors)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    const int side = rect.width() / static_cast<int>(colors_.size());
    QRect square(rect.left(), rect.top(), side, rect.height());
    for (const QColor& color : colors_) {
      PaintSwatch(*painter, square.adjusted(kMargin, kMargin, -kMargin, -kMargin), color);
      square.translate(side, 0);
    }
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SwatchEngine(colors_); }

 private:
  std::vector<QColor> colors_;
};

}  // namespace

void PaintEdge(QPainter& painter, const QRect& place) {
  constexpr float kOpacity = 0.5F;
  QColor edge = QGuiApplication::palette().color(QPalette::Text);
  edge.setAlphaF(kOpacity);
  painter.setPen(edge);
  // On a fine screen a line is several dots wide, all of them inside.
  painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

void ColorArea::Fill(const QColor& color) {
  color_ = color;
  update();
}

QSize ColorArea::sizeHint() const {
  const int side = 2 * fontMetrics().height();
  return {side, side};
}

void ColorArea::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintSwatch(painter, rect(), color_);
}

QIcon SwatchIcon(const std::vector<QColor>& colors) { return QIcon(new SwatchEngine(colors)); }

QSize SwatchIconSize(const QWidget& list, int colors) {
  const int side = list.fontMetrics().height() + kMargin;
  return {colors * side, side};
}

}  // namespace wheelwright
