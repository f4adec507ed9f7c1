#include "core/windows/WholeFileOfWindows.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>
#include <windows.h>

namespace wheelwright::testing {
namespace {

using Rows = std::vector<std::pair<unsigned long, int>>;

constexpr unsigned long kDiskQuotaExceeded = 1295;

const Rows kRows = {
    {ERROR_PATH_NOT_FOUND, 76},
    {ERROR_INVALID_DRIVE, 76},
    {ERROR_BAD_NETPATH, 76},
    {ERROR_BAD_NET_NAME, 76},
    {ERROR_INVALID_NAME, 76},
    {ERROR_BAD_PATHNAME, 76},
    {ERROR_FILENAME_EXCED_RANGE, 76},
    {ERROR_DIRECTORY, 76},
    {ERROR_ACCESS_DENIED, 75},
    {ERROR_WRITE_PROTECT, 75},
    {ERROR_NETWORK_ACCESS_DENIED, 75},
    {ERROR_DELETE_PENDING, 75},
    {ERROR_USER_MAPPED_FILE, 75},
    {ERROR_PRIVILEGE_NOT_HELD, 75},
    {ERROR_CANT_ACCESS_FILE, 75},
    {ERROR_SHARING_VIOLATION, 70},
    {ERROR_LOCK_VIOLATION, 70},
    {ERROR_DISK_FULL, 61},
    {ERROR_HANDLE_DISK_FULL, 61},
    {kDiskQuotaExceeded, 61},
    {ERROR_FILE_TOO_LARGE, 61},
    {ERROR_NOT_ENOUGH_MEMORY, 7},
    {ERROR_OUTOFMEMORY, 7},
    {ERROR_NOT_ENOUGH_QUOTA, 7},
    {ERROR_COMMITMENT_LIMIT, 7},
    {ERROR_CRC, 57},
    {ERROR_NOT_READY, 57},
    {ERROR_GEN_FAILURE, 57},
    {0, 57},
};

TEST(WindowsFailuresTest, EachErrorHasItsNumberWhicheverWayTheFileIsUsed) {
  for (const auto& [error, number] : kRows) {
    EXPECT_EQ(static_cast<int>(FailureOfReading(error).Number()), number) << error;
    EXPECT_EQ(static_cast<int>(FailureOfWriting(error).Number()), number) << error;
  }
}

TEST(WindowsFailuresTest, AFileThatIsNotThereIsWrittenNowhere) {
  EXPECT_EQ(static_cast<int>(FailureOfReading(ERROR_FILE_NOT_FOUND).Number()), 53);
  EXPECT_EQ(static_cast<int>(FailureOfWriting(ERROR_FILE_NOT_FOUND).Number()), 76);
}

}  // namespace
}  // namespace wheelwright::testing
