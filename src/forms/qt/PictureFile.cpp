#include "forms/qt/PictureFile.h"

#include <QImageReader>
#include <QString>

namespace wheelwright {

QImage ReadPicture(const std::string& file) {
  QImageReader reader(QString::fromStdString(file));
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(false);
  const QByteArray format = reader.format();
  if (format != "bmp" && format != "jpeg" && format != "jpg") return {};
  return reader.read();
}

}  // namespace wheelwright
