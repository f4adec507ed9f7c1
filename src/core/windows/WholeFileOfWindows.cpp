#include "core/windows/WholeFileOfWindows.h"

#include <algorithm>
#include <array>

namespace wheelwright {
namespace {

// ERROR_DISK_QUOTA_EXCEEDED, which not every set of headers has.
constexpr unsigned long kDiskQuotaExceeded = 1295;

struct Row {
  unsigned long error;
  FailureNumber number;
};

constexpr std::array<Row, 27> kRows = {{
    {ERROR_FILE_NOT_FOUND, FailureNumber::FileNotFound},
    {ERROR_PATH_NOT_FOUND, FailureNumber::PathNotFound},
    {ERROR_INVALID_DRIVE, FailureNumber::PathNotFound},
    {ERROR_BAD_NETPATH, FailureNumber::PathNotFound},
    {ERROR_BAD_NET_NAME, FailureNumber::PathNotFound},
    {ERROR_INVALID_NAME, FailureNumber::PathNotFound},
    {ERROR_BAD_PATHNAME, FailureNumber::PathNotFound},
    {ERROR_FILENAME_EXCED_RANGE, FailureNumber::PathNotFound},
    {ERROR_DIRECTORY, FailureNumber::PathNotFound},
    {ERROR_ACCESS_DENIED, FailureNumber::PathFileAccess},
    {ERROR_WRITE_PROTECT, FailureNumber::PathFileAccess},
    {ERROR_NETWORK_ACCESS_DENIED, FailureNumber::PathFileAccess},
    {ERROR_DELETE_PENDING, FailureNumber::PathFileAccess},
    {ERROR_USER_MAPPED_FILE, FailureNumber::PathFileAccess},
    {ERROR_PRIVILEGE_NOT_HELD, FailureNumber::PathFileAccess},
    {ERROR_CANT_ACCESS_FILE, FailureNumber::PathFileAccess},
    {ERROR_PIPE_BUSY, FailureNumber::PathFileAccess},
    {ERROR_SHARING_VIOLATION, FailureNumber::PermissionDenied},
    {ERROR_LOCK_VIOLATION, FailureNumber::PermissionDenied},
    {ERROR_DISK_FULL, FailureNumber::DiskFull},
    {ERROR_HANDLE_DISK_FULL, FailureNumber::DiskFull},
    {kDiskQuotaExceeded, FailureNumber::DiskFull},
    {ERROR_FILE_TOO_LARGE, FailureNumber::DiskFull},
    {ERROR_NOT_ENOUGH_MEMORY, FailureNumber::OutOfMemory},
    {ERROR_OUTOFMEMORY, FailureNumber::OutOfMemory},
    {ERROR_NOT_ENOUGH_QUOTA, FailureNumber::OutOfMemory},
    {ERROR_COMMITMENT_LIMIT, FailureNumber::OutOfMemory},
}};

void Check(BOOL success) {
  if (success == FALSE) throw FailureOfWriting(GetLastError());
}

BOOL MoveTo(HANDLE file, std::size_t position) {
  LARGE_INTEGER distance{};
  distance.QuadPart = static_cast<LONGLONG>(position);
  return SetFilePointerEx(file, distance, nullptr, FILE_BEGIN);
}

}  // namespace

Failure FailureOfReading(unsigned long windowsError) {
  const auto* const row =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& each) { return each.error == windowsError; });
  return Failure(row == kRows.end() ? FailureNumber::DeviceIoError : row->number);
}

Failure FailureOfWriting(unsigned long windowsError) {
  if (windowsError == ERROR_FILE_NOT_FOUND) return Failure(FailureNumber::PathNotFound);
  return FailureOfReading(windowsError);
}

Handle OpenAnything(const std::wstring& path, DWORD access, DWORD share, DWORD how, DWORD flags,
                    SECURITY_ATTRIBUTES* rights) {
  HANDLE handle = CreateFileW(path.c_str(), access, share, rights, how, flags, nullptr);
  return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

void RefuseDevices(const Handle& file) {
  if (GetFileType(file.get()) != FILE_TYPE_DISK) throw Failure(FailureNumber::PathFileAccess);
}

WholeFile::WholeFile(const std::wstring& path, SECURITY_ATTRIBUTES* rightsOfNew)
    : path_(path),
      file_(OpenAnything(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                         rightsOfNew)) {
  const DWORD error = GetLastError();
  if (!file_) throw FailureOfWriting(error);
  RefuseDevices(file_);
  isNew_ = error != ERROR_ALREADY_EXISTS;
  oldSize_ = Size();
}

WholeFile::~WholeFile() {
  if (!isUntouched_ || !file_) return;
  if (Size() != oldSize_ && MoveTo(file_.get(), oldSize_) != FALSE) SetEndOfFile(file_.get());
  file_.reset();
  if (isNew_ && oldSize_ == 0) DeleteFileW(path_.c_str());
}

std::size_t WholeFile::Size() const {
  LARGE_INTEGER size{};
  return GetFileSizeEx(file_.get(), &size) != FALSE ? static_cast<std::size_t>(size.QuadPart) : 0;
}

void WholeFile::SetEnd(std::size_t size) {
  Check(MoveTo(file_.get(), size));
  Check(SetEndOfFile(file_.get()));
}

void WholeFile::Reserve(std::size_t size) {
  if (size > oldSize_) SetEnd(size);
}

void WholeFile::Write(std::string_view text) {
  Reserve(text.size());
  isUntouched_ = false;
  Check(MoveTo(file_.get(), 0));
  const std::size_t size = text.size();
  while (!text.empty()) text.remove_prefix(WriteFrom(text));
  if (size < oldSize_) SetEnd(size);
  Check(FlushFileBuffers(file_.get()));
  Check(CloseHandle(file_.release()));
}

std::size_t WholeFile::WriteFrom(std::string_view text) {
  DWORD put = 0;
  const auto step = static_cast<DWORD>(std::min(text.size(), kLargestStep));
  Check(WriteFile(file_.get(), text.data(), step, &put, nullptr));
  if (put == 0) throw Failure(FailureNumber::DiskFull);
  return put;
}

}  // namespace wheelwright
