#include "forms/qt/system/QtDesktop.h"

#include "forms/qt/system/Native.h"
#include "forms/qt/widgets/Pictures.h"
#include "forms/qt/widgets/ShownText.h"

#include <QApplication>

namespace wheelwright {
namespace {

// What a box or dialog belongs to: the active window or else, if it is shown, the one that owns the
// others. No window is active just after a box has gone, or while another program is used.
QWidget* WindowInUse() {
  if (QApplication::activeWindow() != nullptr) return QApplication::activeWindow();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool isMain = window->windowType() == Qt::Window && window->parentWidget() == nullptr;
    if (isMain && window->isVisible()) return window;
  }
  return nullptr;
}

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
  RunFileDialog(WindowInUse(), dialog, QFileDialog::AcceptOpen, lastDirectory_);
}

void QtDesktop::ShowSave(FileDialog& dialog) {
  RunFileDialog(WindowInUse(), dialog, QFileDialog::AcceptSave, lastDirectory_);
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
