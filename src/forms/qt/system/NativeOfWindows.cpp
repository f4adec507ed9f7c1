// The common file dialog of Windows itself, to which the flags are known under the same numbers,
// and its shell. The toolkit's way to it would put the filter's ending behind every name that lacks
// it.
#include "core/Failure.h"
#include "core/windows/WideText.h"
#include "forms/qt/system/Native.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>
#include <windows.h>

#include <QApplication>
#include <QDir>
#include <QWidget>

namespace wheelwright {
namespace {

namespace fs = std::filesystem;

static_assert(FileDialog::kReadOnlyTicked == OFN_READONLY);
static_assert(FileDialog::kOverwritePrompt == OFN_OVERWRITEPROMPT);
static_assert(FileDialog::kHideReadOnly == OFN_HIDEREADONLY);

constexpr std::size_t kLongestPath = 32768;

HWND HandleOf(const QWidget* window) {
  return window == nullptr ? nullptr : reinterpret_cast<HWND>(window->winId());
}

// The dialog itself keeps only the window below it from being used; this sees to the others.
class OthersBlocked {
 public:
  explicit OthersBlocked(HWND owner) {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible() || HandleOf(window) == owner) continue;
      if (EnableWindow(HandleOf(window), FALSE) == FALSE) blocked_.push_back(HandleOf(window));
    }
  }
  ~OthersBlocked() {
    for (HWND window : blocked_) EnableWindow(window, TRUE);
  }
  OthersBlocked(const OthersBlocked&) = delete;
  OthersBlocked& operator=(const OthersBlocked&) = delete;

 private:
  std::vector<HWND> blocked_;
};

// Labels and patterns, each with a zero behind it, and one more at the end; a label without
// patterns is left out.
std::wstring FiltersOf(const std::string& text) {
  const QStringList parts = QString::fromStdString(text).split('|');
  std::wstring filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    if (parts[i + 1].isEmpty()) continue;
    filters += parts[i].toStdWString() + L'\0' + parts[i + 1].toStdWString() + L'\0';
  }
  return filters + L'\0';
}

// Where the dialog starts: in the folder of the preset file, if that is there.
std::wstring FolderFor(const fs::path& file, const QString& directory) {
  std::error_code ignored;
  if (fs::is_directory(file.parent_path(), ignored)) return file.parent_path().wstring();
  return directory.toStdWString();
}

void Show(OPENFILENAMEW& request, QFileDialog::AcceptMode mode) {
  const OthersBlocked others(request.hwndOwner);
  const BOOL chosen =
      mode == QFileDialog::AcceptSave ? GetSaveFileNameW(&request) : GetOpenFileNameW(&request);
  if (chosen != FALSE) return;
  throw Failure(CommDlgExtendedError() == 0 ? FailureNumber::CancelSelected : FailureNumber::DeviceIoError);
}

}  // namespace

// What name may be chosen is the program's matter; the dialog tests only what the flags ask for.
void RunFileDialog(QWidget* owner, FileDialog& dialog, QFileDialog::AcceptMode mode, QString& directory) {
  const fs::path preset = WideOf(dialog.file);
  const std::wstring title = WideOf(dialog.title);
  const std::wstring filters = FiltersOf(dialog.filter);
  const std::wstring folder = FolderFor(preset, directory);
  std::wstring file = preset.filename().wstring();
  file.resize(kLongestPath);

  OPENFILENAMEW request{};
  request.lStructSize = sizeof(request);
  request.hwndOwner = HandleOf(owner);
  request.lpstrFilter = filters.c_str();
  request.nFilterIndex = static_cast<DWORD>(std::max(dialog.filterIndex, 0));
  request.lpstrFile = file.data();
  request.nMaxFile = static_cast<DWORD>(file.size());
  request.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  request.lpstrTitle = title.empty() ? nullptr : title.c_str();
  request.Flags = static_cast<DWORD>(dialog.flags) | OFN_EXPLORER | OFN_ENABLESIZING | OFN_NOCHANGEDIR |
                  OFN_NOTESTFILECREATE;
  Show(request, mode);

  dialog.file = Utf8Of(file.c_str());
  dialog.filterIndex = static_cast<int>(request.nFilterIndex);
  directory = QString::fromStdWString(fs::path(file.c_str()).parent_path().wstring());
}

void OpenInShell(const QString& file) {
  const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
  ShellExecuteW(HandleOf(QApplication::activeWindow()), L"Open", path.c_str(), L"", L"", SW_SHOWNORMAL);
}

}  // namespace wheelwright
