#include "forms/qt/Shell.h"

#include <QDesktopServices>
#include <QUrl>

namespace wheelwright {

void OpenInShell(const QString& file) { QDesktopServices::openUrl(QUrl::fromLocalFile(file)); }

}  // namespace wheelwright
