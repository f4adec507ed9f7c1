// The dialog of the toolkit, and the desktop that it finds.
#include "core/Failure.h"
#include "forms/qt/system/Native.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace wheelwright {
namespace {

// Qt wants the patterns in parentheses behind the label, where a label may show them already.
QString NameFilter(const QString& label, const QString& patterns) {
  static const QRegularExpression shownPatterns("\\s*\\([^()]*\\)\\s*$");
  QString name = label;
  return name.remove(shownPatterns) + " (" + QString(patterns).replace(';', ' ') + ")";
}

// "label|patterns|label|patterns|..." one by one; a label without patterns is left out.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    if (!parts[i + 1].isEmpty()) filters += NameFilter(parts[i], parts[i + 1]);
  }
  return filters;
}

void Preset(QFileDialog& shown, const FileDialog& dialog, const QString& directory) {
  if (!dialog.title.empty()) shown.setWindowTitle(QString::fromStdString(dialog.title));
  const QStringList filters = NameFilters(dialog.filter);
  if (!filters.isEmpty()) shown.setNameFilters(filters);
  if (dialog.filterIndex >= 1 && dialog.filterIndex <= filters.size()) {
    shown.selectNameFilter(filters[dialog.filterIndex - 1]);
  }
  shown.setOption(QFileDialog::DontConfirmOverwrite, (dialog.flags & FileDialog::kOverwritePrompt) == 0);
  if (!directory.isEmpty()) shown.setDirectory(directory);
  if (dialog.file.empty()) return;
  const QFileInfo file(QString::fromStdString(dialog.file));
  if (file.dir().exists()) shown.setDirectory(file.dir());
  shown.selectFile(file.fileName());
}

void TakeChoice(const QFileDialog& shown, FileDialog& dialog) {
  const QString file = QDir::toNativeSeparators(shown.selectedFiles().constFirst());
  dialog.file = file.toStdString();
  const auto chosen = NameFilters(dialog.filter).indexOf(shown.selectedNameFilter());
  if (chosen >= 0) dialog.filterIndex = static_cast<int>(chosen) + 1;
}

}  // namespace

// A file that isn't there can be chosen in the open dialog too; what to do then is the program's.
void RunFileDialog(QWidget* owner, FileDialog& dialog, QFileDialog::AcceptMode mode, QString& directory) {
  QFileDialog shown(owner);
  shown.setAcceptMode(mode);
  shown.setFileMode(QFileDialog::AnyFile);
  Preset(shown, dialog, directory);
  if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) {
    throw Failure(FailureNumber::CancelSelected);
  }
  TakeChoice(shown, dialog);
  directory = QFileInfo(shown.selectedFiles().constFirst()).absolutePath();
}

void OpenInShell(const QString& file) { QDesktopServices::openUrl(QUrl::fromLocalFile(file)); }

}  // namespace wheelwright
