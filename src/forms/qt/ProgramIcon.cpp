#include "forms/qt/ProgramIcon.h"

#include <QString>

namespace wheelwright {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QString(":/icons/wheelwright-%1.png").arg(size));
  return icon;
}

}  // namespace wheelwright
