#include "forms/qt/system/QtPorts.h"

#include "forms/qt/system/Native.h"
#include "forms/qt/widgets/Pictures.h"
#include "forms/qt/widgets/ShownText.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>

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

QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const std::string& text,
                                    QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QCoreApplication::applicationName(), "", buttons, WindowInUse());
  box.setTextFormat(Qt::PlainText);
  box.setText(ShownMessage(text));
  // Of a question; what it asks for loses something.
  box.setDefaultButton(QMessageBox::No);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

bool Ask(QMessageBox::Icon icon, const std::string& text) {
  return ShowBox(icon, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QString Address(const std::string& section, const std::string& key) {
  return QString::fromStdString(section + "/" + key);
}

std::string DescriptionInFlight() {
  try {
    throw;
  } catch (const std::exception& exception) {
    return exception.what();
  } catch (...) {
    return "Unknown exception";
  }
}

// The first of the toolkit's locales whose language calls itself so.
QLocale LocaleNamed(const QString& language) {
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    if (locale.nativeLanguageName().compare(language, Qt::CaseInsensitive) == 0) return locale;
  }
  return QLocale::c();
}

}  // namespace

QtDesktop::QtDesktop() { QCoreApplication::installTranslator(&words_); }

void QtDesktop::ShowInformation(const std::string& text) {
  ShowBox(QMessageBox::Information, text, QMessageBox::Ok);
}

void QtDesktop::ShowError(const std::string& text) { ShowBox(QMessageBox::Critical, text, QMessageBox::Ok); }

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
  if (pointer == Pointer::Hourglass && !isHourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == Pointer::Normal && isHourglass) QApplication::restoreOverrideCursor();
}

void QtDesktop::OpenWithShell(const std::string& file) { OpenInShell(QString::fromStdString(file)); }

std::optional<PictureSize> QtDesktop::SizeOfPicture(const std::string& file) {
  const QImage picture = ReadPicture(file);
  if (picture.isNull()) return std::nullopt;
  return PictureSize{picture.width(), picture.height()};
}

// The translations of the toolkit lie beside the program, or where the system has them.
void QtDesktop::SetLanguage(const std::string& name) {
  const QLocale locale = LocaleNamed(QString::fromStdString(name));
  if (words_.load(locale, "qtbase", "_", QCoreApplication::applicationDirPath() + "/translations")) return;
  static_cast<void>(words_.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
}

void QtDesktop::EndProgram() {
  ended_ = true;
  QCoreApplication::exit(0);
}

QtSettings::QtSettings()
    : store_(QSettings::NativeFormat, QSettings::UserScope, "Wheelwright", "Wheelwright") {}

std::optional<std::string> QtSettings::Get(const std::string& section, const std::string& key) const {
  if (!store_.contains(Address(section, key))) return std::nullopt;
  return store_.value(Address(section, key)).toString().toStdString();
}

void QtSettings::Set(const std::string& section, const std::string& key, const std::string& value) {
  store_.setValue(Address(section, key), QString::fromStdString(value));
  store_.sync();
}

void QtEdge::EndByFailure(const Failure& failure) {
  End(std::to_string(static_cast<int>(failure.Number())) + "\n" + failure.Description());
}

void QtEdge::EndByOtherException() { End("\n" + DescriptionInFlight()); }

void QtEdge::End(const std::string& description) {
  hasFailed_ = true;
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  ShowBox(QMessageBox::Critical, "Run-time error " + description, QMessageBox::Ok);
  QCoreApplication::exit(1);
}

}  // namespace wheelwright
