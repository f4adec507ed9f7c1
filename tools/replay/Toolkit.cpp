#include "replay/Toolkit.h"

#include "replay/DarkPalette.h"

#include <clocale>

namespace wheelwright::replay {
namespace {

void UseOffscreenWithoutDisplay() {
#ifdef Q_OS_LINUX
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
#endif
}

}  // namespace

Toolkit::Toolkit(bool dark) {
  UseOffscreenWithoutDisplay();
  application_ = std::make_unique<QApplication>(argumentCount_, arguments_.data());
  if (dark) QApplication::setPalette(DarkPalette());
  // The toolkit sets the user's locale, whose numbers may have a decimal comma.
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace wheelwright::replay
