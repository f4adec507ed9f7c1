#include "forms/qt/widgets/Swatches.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace wheelwright {
namespace {

constexpr int kMargin = 2;

class SwatchEngine : public QIconEngine {
 public:
  explicit SwatchEngine(const QColor& color) : color_(color) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    constexpr float kEdgeOpacity = 0.5F;
    QColor edge = QGuiApplication::palette().color(QPalette::Text);
    edge.setAlphaF(kEdgeOpacity);
    const QRect square = rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter->fillRect(square, color_);
    painter->setPen(edge);
    painter->drawRect(square.adjusted(0, 0, -1, -1));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SwatchEngine(color_); }

 private:
  QColor color_;
};

}  // namespace

ColorArea::ColorArea(QWidget* parent) : QFrame(parent) { setFrameStyle(QFrame::Panel | QFrame::Sunken); }

void ColorArea::Fill(const QColor& color) {
  color_ = color;
  update();
}

QSize ColorArea::sizeHint() const {
  const int side = 2 * fontMetrics().height();
  return {side, side};
}

void ColorArea::paintEvent(QPaintEvent* event) {
  if (color_.isValid()) QPainter(this).fillRect(contentsRect(), color_);
  QFrame::paintEvent(event);
}

QIcon SwatchIcon(const QColor& color) { return QIcon(new SwatchEngine(color)); }

QSize SwatchIconSize(const QWidget& list) {
  const int side = list.fontMetrics().height() + kMargin;
  return {side, side};
}

}  // namespace wheelwright
