#include "forms/qt/Areas.h"

#include "forms/qt/PictureFile.h"

#include <QFileInfo>
#include <QPainter>

namespace wheelwright {

void PictureArea::Show(const QString& file) {
  const QDateTime changed = QFileInfo(file).lastModified();
  if (file == file_ && changed == readAs_) return;
  file_ = file;
  readAs_ = changed;
  image_ = file.isEmpty() ? QImage() : ReadPicture(file.toStdString());
  image_.setDevicePixelRatio(1);
  update();
}

void PictureArea::MoveTo(QPointF place) {
  place_ = place;
  update();
}

void PictureArea::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.drawImage(place_, image_);
}

ColorArea::ColorArea(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
}

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

}  // namespace wheelwright
