// Pictures from disk, and the widget that paints one.
#pragma once

#include <string>

#include <QDateTime>
#include <QImage>
#include <QPointF>
#include <QWidget>

namespace wheelwright {

// The picture in a BMP or JPEG file (path in UTF-8), told by its content and not by its name. A
// null image if the file can't be read as one, or would need unreasonably much memory.
QImage ReadPicture(const std::string& file);

// A picture at its natural size, in pixels at 96 dots per inch, cut by the widget's own bounds.
class PictureArea : public QWidget {
 public:
  using QWidget::QWidget;

  // Reads the file if it isn't the one that shows or has changed since. Empty shows nothing.
  void Show(const std::string& file, QPointF place);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::string file_;
  QDateTime readAs_;
  QImage image_;
  QPointF place_;
};

}  // namespace wheelwright
