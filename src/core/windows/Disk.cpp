// The disk on Windows.
#include "core/DiskFiles.h"
#include "core/windows/WholeFileOfWindows.h"
#include "core/windows/WideText.h"

#include <algorithm>
#include <vector>
#include <windows.h>

namespace wheelwright {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The attributes of what a path leads to, through links; INVALID_FILE_ATTRIBUTES if that is
// nothing.
DWORD AttributesOf(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return attributes;
  }
  const Handle file =
      OpenAnything(path, FILE_READ_ATTRIBUTES, kShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION information{};
  if (!file || GetFileInformationByHandle(file.get(), &information) == FALSE) {
    return INVALID_FILE_ATTRIBUTES;
  }
  return information.dwFileAttributes;
}

bool IsFile(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

void RefuseReadOnly(const std::wstring& path) {
  const DWORD attributes = AttributesOf(path);
  if (IsFile(attributes) && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    throw Failure(FailureNumber::PathFileAccess);
  }
}

// Who may do what with a file; empty where the disk knows nothing of that.
std::vector<char> RightsOf(const std::wstring& path) {
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> rights(size);
  if (GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size) == FALSE) {
    rights.clear();
  }
  return rights;
}

std::size_t SizeHint(HANDLE file) {
  LARGE_INTEGER size{};
  return GetFileSizeEx(file, &size) != FALSE ? static_cast<std::size_t>(size.QuadPart) : 0;
}

std::size_t ReadInto(char* target, std::size_t room, HANDLE file) {
  DWORD got = 0;
  const auto step = static_cast<DWORD>(std::min(room, kLargestStep));
  if (ReadFile(file, target, step, &got, nullptr) == FALSE) throw FailureOfReading(GetLastError());
  return got;
}

struct CloseSearch {
  void operator()(HANDLE search) const { FindClose(search); }
};

}  // namespace

// Windows has no signals of that kind.
void LetWritesFail() {}

bool DiskFiles::Exists(const std::string& path) const { return IsFile(AttributesOf(DiskPath(path))); }

std::string DiskFiles::Read(const std::string& path) const {
  const Handle file = OpenAnything(DiskPath(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                   OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
  if (!file) throw FailureOfReading(GetLastError());
  RefuseDevices(file);
  constexpr std::size_t kSmallestStep = 65536;
  std::string text(SizeHint(file.get()) + 1, '\0');
  std::size_t length = 0;
  while (const std::size_t got = ReadInto(text.data() + length, text.size() - length, file.get())) {
    length += got;
    if (length == text.size()) text.resize(length + std::max(kSmallestStep, length));
  }
  text.resize(length);
  return text;
}

void DiskFiles::Write(const std::string& path, std::string_view text) {
  const std::wstring diskPath = DiskPath(path);
  RefuseReadOnly(diskPath);
  WholeFile(diskPath).Write(text);
}

void DiskFiles::CheckRoom(const std::string& path, std::string_view text) {
  try {
    WholeFile(DiskPath(path)).Reserve(text.size());
  } catch (const Failure& failure) {
    if (failure.Number() == FailureNumber::DiskFull) throw;
  }
}

void DiskFiles::Copy(const std::string& from, const std::string& to) {
  const std::string text = Read(from);
  const std::wstring diskPath = DiskPath(to);
  RefuseReadOnly(diskPath);
  std::vector<char> rights = RightsOf(DiskPath(from));
  SECURITY_ATTRIBUTES attributes{sizeof attributes, rights.data(), FALSE};
  WholeFile(diskPath, rights.empty() ? nullptr : &attributes).Write(text);
  // Where the read-only mark is one of the rights, as under wine, it has come along.
  if ((AttributesOf(diskPath) & FILE_ATTRIBUTE_READONLY) != 0) ClearAttributes(to);
}

void DiskFiles::ClearAttributes(const std::string& path) {
  static_cast<void>(SetFileAttributesW(DiskPath(path).c_str(), FILE_ATTRIBUTE_NORMAL));
}

std::vector<std::string> DiskFiles::NamesIn(const std::string& directory) {
  std::vector<std::string> names;
  if (directory.empty()) return names;
  const std::wstring folder = DiskPath(directory + "\\");
  WIN32_FIND_DATAW found{};
  HANDLE first = FindFirstFileW((folder + L"*").c_str(), &found);
  if (first == INVALID_HANDLE_VALUE) return names;
  const std::unique_ptr<void, CloseSearch> search(first);
  do {
    const DWORD attributes = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0
                                 ? AttributesOf(folder + found.cFileName)
                                 : found.dwFileAttributes;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.push_back(Utf8Of(found.cFileName));
  } while (FindNextFileW(search.get(), &found) != FALSE);
  return names;
}

}  // namespace wheelwright
