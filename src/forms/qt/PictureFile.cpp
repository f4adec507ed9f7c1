#include "forms/qt/PictureFile.h"

#include <QFileInfo>
#include <QImageReader>
#include <QString>

namespace wheelwright {

QImage ReadPicture(const std::string& file) {
  const QString path = QString::fromStdString(file);
  // The toolkit would wait for somebody to write into a pipe.
  if (!QFileInfo(path).isFile()) return {};
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(false);
  const QByteArray format = reader.format();
  if (format != "bmp" && format != "jpeg" && format != "jpg") return {};
  return reader.read();
}

}  // namespace wheelwright
