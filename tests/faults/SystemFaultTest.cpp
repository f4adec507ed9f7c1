// What each call of the system that fails becomes, and what it leaves of the file.
#ifdef __linux__
#include "core/DiskFiles.h"
#include "faults/SystemFault.h"
#include "support/Thrown.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;

struct Refusal {
  int error;
  int whileReading;
  int whileWriting;
};

constexpr std::array<Refusal, 16> kRefusals = {{{ENOENT, 53, 76},
                                                {ENOTDIR, 76, 76},
                                                {ENAMETOOLONG, 76, 76},
                                                {EACCES, 75, 75},
                                                {EPERM, 75, 75},
                                                {EROFS, 75, 75},
                                                {EISDIR, 75, 75},
                                                {ENXIO, 75, 75},
                                                {ENODEV, 75, 75},
                                                {EAGAIN, 70, 70},
                                                {ENOSPC, 61, 61},
                                                {EFBIG, 61, 61},
                                                {EDQUOT, 61, 61},
                                                {ENOMEM, 7, 7},
                                                {EIO, 57, 57},
                                                {EMFILE, 57, 57}}};

class SystemFaultTest : public ::testing::Test {
 protected:
  SystemFaultTest() { fs::create_directory(folder_); }
  ~SystemFaultTest() override { fs::remove_all(folder_); }

  int WriteFailure(const std::string& text) {
    return NumberThrownBy([&] { files_.Write(path_, text); });
  }
  // "-" if there is none.
  std::string Left() const { return fs::exists(path_) ? files_.Read(path_) : "-"; }

  fs::path folder_ = fs::temp_directory_path() / ("system-" + std::to_string(std::random_device{}()));
  std::string path_ = (folder_ / "handling.cfg").string();
  DiskFiles files_;
};

TEST_F(SystemFaultTest, EachRefusalToOpenHasItsFailure) {
  for (const Refusal& refusal : kRefusals) {
    const SystemFault fault(SystemCall::Open, refusal.error);
    EXPECT_EQ(NumberThrownBy([&] { files_.Read(path_); }), refusal.whileReading) << refusal.error;
    EXPECT_EQ(WriteFailure(""), refusal.whileWriting) << refusal.error;
  }
}

TEST_F(SystemFaultTest, ALinkIntoAMissingFolderCanNotBeWritten) {
  fs::create_symlink(folder_ / "missing/handling.cfg", path_);
  EXPECT_EQ(WriteFailure("x"), 76);
}

TEST_F(SystemFaultTest, AMissingFileNamedWithoutAFolderIsFailure53) {
  EXPECT_EQ(NumberThrownBy([] { DiskFiles().Read("no such file.cfg"); }), 53);
}

struct Cell {
  const char* what;
  SystemCall call;
  int time;
  const char* leftOfOld;  // of "the old text", over which "new" is written
  const char* leftOfNone;
};

constexpr std::array<Cell, 6> kCells = {{{"reserve", SystemCall::Fallocate, 1, "the old text", "-"},
                                         {"write", SystemCall::Pwrite, 1, "the old text", ""},
                                         {"cut", SystemCall::Ftruncate, 1, "new old text", "new"},
                                         {"wait", SystemCall::Fsync, 1, "new", "new"},
                                         {"wait for the folder", SystemCall::Fsync, 2, nullptr, "new"},
                                         {"close", SystemCall::Close, 1, "new", nullptr}}};

TEST_F(SystemFaultTest, WhateverCallFailsTheWriteFails) {
  for (const auto& [error, failure] : {std::pair{ENOSPC, 61}, {EDQUOT, 61}, {EFBIG, 61}, {EIO, 57}}) {
    for (const Cell& cell : kCells) {
      if (cell.leftOfOld != nullptr) {
        files_.Write(path_, "the old text");
        const SystemFault fault(cell.call, error, cell.time);
        EXPECT_EQ(WriteFailure("new"), failure) << cell.what;
        EXPECT_EQ(Left(), cell.leftOfOld) << cell.what;
      }
      if (cell.leftOfNone != nullptr) {
        fs::remove(path_);
        const SystemFault fault(cell.call, error, cell.time);
        EXPECT_EQ(WriteFailure("new"), failure) << cell.what;
        EXPECT_EQ(Left(), cell.leftOfNone) << cell.what;
      }
    }
  }
}

TEST_F(SystemFaultTest, WithoutReservingTheEndComesFirstAndIsWaitedFor) {
  for (const SystemCall call : {SystemCall::Pwrite, SystemCall::Fsync}) {
    files_.Write(path_, "old");
    const SystemFault unable(SystemCall::Fallocate, EOPNOTSUPP);
    EXPECT_EQ(WriteFailure("a longer text"), 0);
    EXPECT_EQ(Left(), "a longer text");
    EXPECT_EQ(WriteFailure("old"), 0);
    EXPECT_EQ(Left(), "old");
    const SystemFault fault(call, ENOSPC, 1);
    EXPECT_EQ(WriteFailure("a longer text"), 61);
    EXPECT_EQ(Left(), "old");
  }
}

TEST_F(SystemFaultTest, WithoutReservingANewFileWithoutRoomIsntLeft) {
  const SystemFault unable(SystemCall::Fallocate, EOPNOTSUPP);
  const SystemFault fault(SystemCall::Fsync, ENOSPC, 1);
  EXPECT_EQ(WriteFailure("a text"), 61);
  EXPECT_EQ(Left(), "-");
}

TEST_F(SystemFaultTest, CallsThatAreInterruptedGoOn) {
  for (const SystemCall call : {SystemCall::Fallocate, SystemCall::Pwrite, SystemCall::Close}) {
    const SystemFault fault(call, EINTR, 1);
    EXPECT_EQ(WriteFailure("text"), 0);
    EXPECT_EQ(Left(), "text");
  }
}

TEST_F(SystemFaultTest, AFolderThatKnowsNoWaitingIsNoFailure) {
  const SystemFault fault(SystemCall::Fsync, EINVAL, 2);
  EXPECT_EQ(WriteFailure("text"), 0);
}

TEST_F(SystemFaultTest, RoomIsCheckedWithoutAChange) {
  files_.Write(path_, "old");
  files_.CheckRoom(path_, "a longer text");
  EXPECT_EQ(Left(), "old");
  const SystemFault fault(SystemCall::Fallocate, ENOSPC);
  EXPECT_EQ(NumberThrownBy([&] { files_.CheckRoom(path_, "a longer text"); }), 61);
  EXPECT_EQ(Left(), "old");
  const SystemFault other(SystemCall::Open, EACCES);
  EXPECT_EQ(NumberThrownBy([&] { files_.CheckRoom(path_, "a longer text"); }), 0);
}

TEST_F(SystemFaultTest, CheckingTheRoomOfANewFileLeavesNone) {
  files_.CheckRoom(path_, "a text");
  EXPECT_EQ(Left(), "-");
}

}  // namespace
}  // namespace wheelwright::testing
#endif
