// The disk on Windows.
#include "core/DiskFiles.h"
#include "core/windows/Failures.h"
#include "core/windows/Path.h"
#include "core/windows/Text.h"

#include <algorithm>
#include <memory>
#include <windows.h>

namespace wheelwright {
namespace {

// A single call moves at most this much.
constexpr std::size_t kLargestStep = 1U << 24U;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct CloseHandleOf {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OpenFile = std::unique_ptr<void, CloseHandleOf>;

OpenFile Open(const std::wstring& path, DWORD access, DWORD share, DWORD how, DWORD flags) {
  HANDLE handle = CreateFileW(path.c_str(), access, share, nullptr, how, flags, nullptr);
  return OpenFile(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

// The attributes of what a path leads to, through links; INVALID_FILE_ATTRIBUTES if that is
// nothing.
DWORD AttributesOf(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return attributes;
  }
  const OpenFile file =
      Open(path, FILE_READ_ATTRIBUTES, kShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION information{};
  if (!file || GetFileInformationByHandle(file.get(), &information) == FALSE) {
    return INVALID_FILE_ATTRIBUTES;
  }
  return information.dwFileAttributes;
}

bool IsFile(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
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

std::size_t WriteFrom(std::string_view text, HANDLE file) {
  DWORD put = 0;
  const auto step = static_cast<DWORD>(std::min(text.size(), kLargestStep));
  if (WriteFile(file, text.data(), step, &put, nullptr) == FALSE) {
    throw FailureOfWriting(GetLastError());
  }
  if (put == 0) throw Failure(FailureNumber::DiskFull);
  return put;
}

struct CloseSearch {
  void operator()(HANDLE search) const { FindClose(search); }
};

}  // namespace

bool DiskFiles::Exists(const std::string& path) const {
  return IsFile(AttributesOf(DiskPath(path)));
}

std::string DiskFiles::Read(const std::string& path) const {
  const OpenFile file = Open(DiskPath(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                             OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
  if (!file) throw FailureOfReading(GetLastError());
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
  const DWORD attributes = AttributesOf(diskPath);
  if (IsFile(attributes) && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    throw Failure(FailureNumber::PathFileAccess);
  }
  OpenFile file =
      Open(diskPath, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL);
  if (!file) throw FailureOfWriting(GetLastError());
  while (!text.empty()) text.remove_prefix(WriteFrom(text, file.get()));
  if (CloseHandle(file.release()) == FALSE) throw FailureOfWriting(GetLastError());
}

void DiskFiles::ClearAttributes(const std::string& path) {
  if (SetFileAttributesW(DiskPath(path).c_str(), FILE_ATTRIBUTE_NORMAL) == FALSE) {
    throw FailureOfWriting(GetLastError());
  }
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
