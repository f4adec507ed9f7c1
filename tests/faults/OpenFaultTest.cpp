// What each reason for which the system refuses a file becomes.
#ifdef __linux__
#include "core/DiskFiles.h"
#include "faults/OpenFault.h"
#include "support/Thrown.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;

struct Refusal {
  int error;
  int whileReading;
  int whileWriting;
};

constexpr std::array<Refusal, 13> kRefusals = {{{ENOENT, 53, 76},
                                                {ENOTDIR, 76, 76},
                                                {ENAMETOOLONG, 76, 76},
                                                {EACCES, 75, 75},
                                                {EPERM, 75, 75},
                                                {EROFS, 75, 75},
                                                {EISDIR, 75, 75},
                                                {ENOSPC, 61, 61},
                                                {EFBIG, 61, 61},
                                                {EDQUOT, 61, 61},
                                                {ENOMEM, 7, 7},
                                                {EIO, 57, 57},
                                                {EMFILE, 57, 57}}};

TEST(OpenFaultTest, EachRefusalHasItsFailure) {
  const std::string path = (fs::temp_directory_path() / "handling.cfg").string();
  DiskFiles files;
  for (const Refusal& refusal : kRefusals) {
    const OpenFault fault(refusal.error);
    EXPECT_EQ(NumberThrownBy([&] { files.Read(path); }), refusal.whileReading) << refusal.error;
    EXPECT_EQ(NumberThrownBy([&] { files.Write(path, ""); }), refusal.whileWriting)
        << refusal.error;
  }
}

TEST(OpenFaultTest, ALinkIntoAMissingFolderCanNotBeWritten) {
  const fs::path link =
      fs::temp_directory_path() / ("link-" + std::to_string(std::random_device{}()));
  fs::create_symlink(link.string() + "-missing/handling.cfg", link);
  DiskFiles files;
  EXPECT_EQ(NumberThrownBy([&] { files.Write(link.string(), "x"); }), 76);
  fs::remove(link);
}

TEST(OpenFaultTest, AMissingFileNamedWithoutAFolderIsFailure53) {
  EXPECT_EQ(NumberThrownBy([] { DiskFiles().Read("no such file.cfg"); }), 53);
}

}  // namespace
}  // namespace wheelwright::testing
#endif
