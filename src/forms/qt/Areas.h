// The widgets that paint a picture and a colour.
#pragma once

#include <QColor>
#include <QDateTime>
#include <QFrame>
#include <QImage>
#include <QPointF>

namespace wheelwright {

// A picture at its natural size, in pixels at 96 dots per inch, cut by the widget's own bounds.
class PictureArea : public QWidget {
 public:
  using QWidget::QWidget;

  // Reads the file if it isn't the one that shows or has changed since. Empty shows nothing.
  void Show(const QString& file);
  void MoveTo(QPointF place);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString file_;
  QDateTime readAs_;
  QImage image_;
  QPointF place_;
};

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

}  // namespace wheelwright
