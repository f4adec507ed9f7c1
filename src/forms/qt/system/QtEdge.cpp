#include "forms/qt/system/QtEdge.h"

#include "forms/qt/system/QtDesktop.h"

#include <QApplication>

namespace wheelwright {
namespace {

std::string DescriptionInFlight() {
  try {
    throw;
  } catch (const std::exception& exception) {
    return exception.what();
  } catch (...) {
    return "Unknown exception";
  }
}

}  // namespace

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
