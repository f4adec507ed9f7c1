#include "forms/qt/widgets/Pictures.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace wheelwright {
namespace {

// What a picture may take in memory; left alone, each version of the toolkit has a limit of its own.
constexpr int kMostMegabytes = 128;

}  // namespace

QImage ReadPicture(const std::string& file) {
  const QString path = QString::fromStdString(file);
  // The toolkit would wait for somebody to write into a pipe.
  if (!QFileInfo(path).isFile()) return {};
  QImageReader::setAllocationLimit(kMostMegabytes);
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(false);
  const QByteArray format = reader.format();
  if (format != "bmp" && format != "jpeg" && format != "jpg") return {};
  return reader.read();
}

void PictureArea::Show(const std::string& file, QPointF place) {
  place_ = place;
  update();
  const QDateTime changed = QFileInfo(QString::fromStdString(file)).lastModified();
  if (file == file_ && changed == readAs_) return;
  file_ = file;
  readAs_ = changed;
  image_ = file.empty() ? QImage() : ReadPicture(file);
  image_.setDevicePixelRatio(1);
}

void PictureArea::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  // Where a dot of the picture is a whole number of the screen's it would only blur.
  const bool isUneven = devicePixelRatioF() != devicePixelRatio();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, isUneven);
  painter.drawImage(place_, image_);
}

}  // namespace wheelwright
