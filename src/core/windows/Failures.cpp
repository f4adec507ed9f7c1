#include "core/windows/Failures.h"

#include <algorithm>
#include <array>
#include <windows.h>

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

}  // namespace

Failure FailureOfReading(unsigned long windowsError) {
  const auto* const row = std::find_if(kRows.begin(), kRows.end(),
                                       [&](const Row& each) { return each.error == windowsError; });
  return Failure(row == kRows.end() ? FailureNumber::DeviceIoError : row->number);
}

Failure FailureOfWriting(unsigned long windowsError) {
  if (windowsError == ERROR_FILE_NOT_FOUND) return Failure(FailureNumber::PathNotFound);
  return FailureOfReading(windowsError);
}

}  // namespace wheelwright
