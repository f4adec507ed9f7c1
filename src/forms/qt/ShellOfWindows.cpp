#include "forms/qt/Shell.h"

#include <string>
#include <windows.h>

#include <QApplication>
#include <QDir>
#include <QWidget>

namespace wheelwright {

void OpenInShell(const QString& file) {
  const QWidget* window = QApplication::activeWindow();
  const auto handle = window == nullptr ? nullptr : reinterpret_cast<HWND>(window->winId());
  const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
  ShellExecuteW(handle, L"Open", path.c_str(), L"", L"", SW_SHOWNORMAL);
}

}  // namespace wheelwright
