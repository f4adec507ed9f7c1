#include "replay/Toolkit.h"

#include "replay/DarkPalette.h"

#include <clocale>
#include <cstdio>

namespace wheelwright::replay {
namespace {

void ShowIfOfUse(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  constexpr std::array kOfNoUse{"This plugin does not support", "QStandardPaths: XDG_RUNTIME_DIR not set",
                                "QImageIOHandler: Rejecting image"};
  for (const char* start : kOfNoUse)
    if (text.startsWith(QLatin1String(start))) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

void UseOffscreenWithoutDisplay() {
#ifdef Q_OS_LINUX
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
#endif
}

}  // namespace

void KeepToolkitQuiet() { qInstallMessageHandler(ShowIfOfUse); }

Toolkit::Toolkit(bool dark) {
  KeepToolkitQuiet();
  UseOffscreenWithoutDisplay();
  application_ = std::make_unique<QApplication>(argumentCount_, arguments_.data());
  if (dark) QApplication::setPalette(DarkPalette());
  // The toolkit sets the user's locale, whose numbers may have a decimal comma.
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace wheelwright::replay
