// Pictures from disk.
#pragma once

#include <string>

#include <QImage>

namespace wheelwright {

// The picture in a BMP or JPEG file (path in UTF-8), told by its content and not by its name. A
// null image if the file can't be read as one, or would need unreasonably much memory.
QImage ReadPicture(const std::string& file);

}  // namespace wheelwright
