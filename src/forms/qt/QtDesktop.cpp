#include "forms/qt/QtDesktop.h"

#include "forms/qt/FileDialogs.h"
#include "forms/qt/PictureFile.h"
#include "forms/qt/QtText.h"
#include "forms/qt/Shell.h"
#include "forms/qt/WindowShell.h"

#include <QApplication>

namespace wheelwright {
namespace {

bool Ask(QMessageBox::Icon icon, const std::string& text) {
  return ShowBox(icon, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const std::string& text,
                                    QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QCoreApplication::applicationName(), "", buttons, WindowInUse());
  box.setTextFormat(Qt::PlainText);
  box.setText(ShownMessage(text));
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

void QtDesktop::ShowInformation(const std::string& text) {
  ShowBox(QMessageBox::Information, text, QMessageBox::Ok);
}

void QtDesktop::ShowError(const std::string& text) {
  ShowBox(QMessageBox::Critical, text, QMessageBox::Ok);
}

bool QtDesktop::AskQuestion(const std::string& text) { return Ask(QMessageBox::Question, text); }

bool QtDesktop::AskYesNo(const std::string& text) { return Ask(QMessageBox::NoIcon, text); }

void QtDesktop::ShowOpen(FileDialog& dialog) {
  RunFileDialog(dialog, QFileDialog::AcceptOpen, lastDirectory_);
}

void QtDesktop::ShowSave(FileDialog& dialog) {
  RunFileDialog(dialog, QFileDialog::AcceptSave, lastDirectory_);
}

void QtDesktop::SetPointer(Pointer pointer) {
  const bool isHourglass = QApplication::overrideCursor() != nullptr;
  if (pointer == Pointer::Hourglass && !isHourglass)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == Pointer::Normal && isHourglass) QApplication::restoreOverrideCursor();
}

void QtDesktop::OpenWithShell(const std::string& file) {
  OpenInShell(QString::fromStdString(file));
}

std::optional<PictureSize> QtDesktop::SizeOfPicture(const std::string& file) {
  const QImage picture = ReadPicture(file);
  if (picture.isNull()) return std::nullopt;
  return PictureSize{picture.width(), picture.height()};
}

void QtDesktop::EndProgram() {
  ended_ = true;
  QCoreApplication::exit(0);
}

}  // namespace wheelwright
