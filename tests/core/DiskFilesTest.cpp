#include "core/DiskFiles.h"
#include "support/Thrown.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;

constexpr int kFileNotFound = 53;
constexpr int kNoAccess = 75;
constexpr int kPathNotFound = 76;

// Files in a folder of the test's own on the real disk.
class DiskFilesTest : public ::testing::Test {
 protected:
  DiskFilesTest() { fs::create_directory(folder_); }
  // Windows removes no file that is read-only.
  ~DiskFilesTest() override {
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      std::error_code ignored;
      fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add, ignored);
    }
    fs::remove_all(folder_);
  }

  // The path, in UTF-8, of a name in the folder.
  std::string In(const std::string& name) const { return folder_.string() + "/" + name; }

  void MakeFolder(const std::string& name) const { fs::create_directory(In(name)); }

  void MakeReadOnly(const std::string& path) const {
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  }

  int ReadFailure(const std::string& path) const {
    return NumberThrownBy([&] { files_.Read(path); });
  }
  int WriteFailure(const std::string& path, const std::string& text = "new") {
    return NumberThrownBy([&] { files_.Write(path, text); });
  }

  fs::path folder_ = fs::temp_directory_path() / ("files-" + std::to_string(std::random_device{}()));
  DiskFiles files_;
};

TEST_F(DiskFilesTest, WhatWasWrittenIsRead) {
  files_.Write(In("a.cfg"), "BUS\r\nVAN\n");
  EXPECT_EQ(files_.Read(In("a.cfg")), "BUS\r\nVAN\n");
}

TEST_F(DiskFilesTest, EveryByteValueComesBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  files_.Write(In("a.cfg"), bytes);
  EXPECT_EQ(files_.Read(In("a.cfg")), bytes);
  EXPECT_EQ(fs::file_size(In("a.cfg")), 256U);
}

TEST_F(DiskFilesTest, ALargeFileComesBack) {
  std::string text;
  for (int line = 0; line < 200000; ++line) text += std::to_string(line) + " 0.70\r\n";
  files_.Write(In("a.cfg"), text);
  EXPECT_TRUE(files_.Read(In("a.cfg")) == text);
}

TEST_F(DiskFilesTest, AnEmptyFileIsRead) {
  files_.Write(In("a.cfg"), "");
  EXPECT_TRUE(files_.Exists(In("a.cfg")));
  EXPECT_EQ(files_.Read(In("a.cfg")), "");
}

TEST_F(DiskFilesTest, WritingLeavesNothingOfALongerFile) {
  files_.Write(In("a.cfg"), "a longer text");
  files_.Write(In("a.cfg"), "short");
  EXPECT_EQ(files_.Read(In("a.cfg")), "short");
}

TEST_F(DiskFilesTest, PathsAreUtf8) {
  files_.Write(In("Grüße 日本.cfg"), "x");
  EXPECT_TRUE(files_.Exists(In("Grüße 日本.cfg")));
  EXPECT_EQ(files_.Read(In("Grüße 日本.cfg")), "x");
  EXPECT_TRUE(fs::exists(folder_ / fs::path(u8"Grüße 日本.cfg")));
}

TEST_F(DiskFilesTest, AFileExistsButADirectoryOrNothingDoesNot) {
  files_.Write(In("a.cfg"), "x");
  MakeFolder("sub");
  EXPECT_TRUE(files_.Exists(In("a.cfg")));
  EXPECT_FALSE(files_.Exists(In("sub")));
  EXPECT_FALSE(files_.Exists(In("b.cfg")));
  EXPECT_FALSE(files_.Exists(In("a.cfg/b.cfg")));
  EXPECT_FALSE(files_.Exists(""));
}

TEST_F(DiskFilesTest, AMissingFileIsFailure53) {
  EXPECT_EQ(ReadFailure(In("missing.cfg")), kFileNotFound);
  EXPECT_EQ(NumberThrownBy([&] { files_.Copy(In("missing.cfg"), In("a.cfg")); }), kFileNotFound);
  EXPECT_FALSE(files_.Exists(In("a.cfg")));
}

TEST_F(DiskFilesTest, AMissingFolderIsFailure76) {
  EXPECT_EQ(WriteFailure(In("missing/a.cfg")), kPathNotFound);
  EXPECT_EQ(ReadFailure(In("missing/a.cfg")), kPathNotFound);
}

TEST_F(DiskFilesTest, AFileInAFoldersPlaceIsFailure76) {
  files_.Write(In("file"), "x");
  EXPECT_EQ(WriteFailure(In("file/a.cfg")), kPathNotFound);
  EXPECT_EQ(ReadFailure(In("file/a.cfg")), kPathNotFound);
}

TEST_F(DiskFilesTest, ADirectoryInAFilesPlaceIsFailure75) {
  MakeFolder("sub");
  EXPECT_EQ(ReadFailure(In("sub")), kNoAccess);
  EXPECT_EQ(WriteFailure(In("sub")), kNoAccess);
}

TEST_F(DiskFilesTest, AReadOnlyFileRefusesWritingAndKeepsItsText) {
  files_.Write(In("a.cfg"), "old");
  files_.Write(In("b.cfg"), "other");
  MakeReadOnly(In("a.cfg"));
  EXPECT_EQ(WriteFailure(In("a.cfg")), kNoAccess);
  EXPECT_EQ(NumberThrownBy([&] { files_.Copy(In("b.cfg"), In("a.cfg")); }), kNoAccess);
  EXPECT_EQ(files_.Read(In("a.cfg")), "old");
}

TEST_F(DiskFilesTest, ClearingTheAttributesMakesAReadOnlyFileWritable) {
  files_.Write(In("a.cfg"), "old");
  MakeReadOnly(In("a.cfg"));
  files_.ClearAttributes(In("a.cfg"));
  EXPECT_EQ(files_.Read(In("a.cfg")), "old");
  EXPECT_EQ(WriteFailure(In("a.cfg")), 0);
  EXPECT_EQ(files_.Read(In("a.cfg")), "new");
}

TEST_F(DiskFilesTest, ACopyReplacesTheTargetAndLeavesItsModel) {
  files_.Write(In("a.cfg"), std::string("a\r\n\0\xFF", 5));
  files_.Write(In("a.cfg.backup"), "a much longer text than that of the model");
  files_.Copy(In("a.cfg"), In("a.cfg.backup"));
  EXPECT_EQ(files_.Read(In("a.cfg.backup")), std::string("a\r\n\0\xFF", 5));
  files_.Write(In("a.cfg.backup"), "changed");
  EXPECT_EQ(files_.Read(In("a.cfg")), std::string("a\r\n\0\xFF", 5));
}

TEST_F(DiskFilesTest, ACopyOfAReadOnlyFileCanBeReplacedAgain) {
  files_.Write(In("a.cfg"), "model");
  MakeReadOnly(In("a.cfg"));
  files_.Copy(In("a.cfg"), In("b.cfg"));
  EXPECT_EQ(WriteFailure(In("b.cfg")), 0);
  EXPECT_EQ(files_.Read(In("b.cfg")), "new");
}

TEST_F(DiskFilesTest, AListNamesTheFilesOnlyOrderedIgnoringCase) {
  for (const char* name : {"b.lng", "A.lng", "Z.lng", "Ärger.lng", "ähnlich.lng", "_.lng", "c"})
    files_.Write(In(name), "x");
  MakeFolder("sub.lng");
  files_.Write(In("sub.lng/inner.lng"), "x");
  const std::vector<std::string> names = {"_.lng", "A.lng",       "b.lng",    "c",
                                          "Z.lng", "ähnlich.lng", "Ärger.lng"};
  EXPECT_EQ(files_.List(folder_.string()), names);
  EXPECT_EQ(files_.List(In("")), names);
}

TEST_F(DiskFilesTest, NamesThatTheCodePageLacksAreListedInUtf8) {
  for (const char* name : {"日本.lng", "Ελλάδα.lng"}) files_.Write(In(name), "x");
  EXPECT_EQ(files_.List(folder_.string()), (std::vector<std::string>{"日本.lng", "Ελλάδα.lng"}));
}

TEST_F(DiskFilesTest, AMissingOrEmptyFolderListsNothing) {
  EXPECT_EQ(files_.List(In("missing")), std::vector<std::string>{});
  EXPECT_EQ(files_.List(folder_.string()), std::vector<std::string>{});
}

#ifdef __linux__
constexpr int kDeviceFault = 57;

TEST_F(DiskFilesTest, AnyOtherFaultIsFailure57) {
  fs::create_symlink("loop", In("loop"));
  EXPECT_EQ(ReadFailure(In("loop")), kDeviceFault);
  EXPECT_EQ(WriteFailure(In("loop")), kDeviceFault);
  EXPECT_FALSE(files_.Exists(In("loop")));
}

TEST_F(DiskFilesTest, ClearingTheAttributesLeavesAWritableFileAsItIs) {
  files_.Write(In("a.cfg"), "old");
  fs::permissions(In("a.cfg"), fs::perms::owner_read | fs::perms::owner_write);
  files_.ClearAttributes(In("a.cfg"));
  EXPECT_EQ(fs::status(In("a.cfg")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(files_.Read(In("a.cfg")), "old");
}

TEST_F(DiskFilesTest, NamesThatDifferInCaseAloneComeInTheOrderOfTheirBytes) {
  for (const char* name : {"a.lng", "A.lng", "AA.lng"}) files_.Write(In(name), "x");
  EXPECT_EQ(files_.List(folder_.string()), (std::vector<std::string>{"A.lng", "a.lng", "AA.lng"}));
}

TEST_F(DiskFilesTest, AFileThatHidesItsSizeIsReadWhole) {
  ASSERT_EQ(fs::file_size("/proc/cpuinfo"), 0U);
  const std::string text = files_.Read("/proc/cpuinfo");
  EXPECT_GT(text.size(), 1U);
  EXPECT_EQ(text.back(), '\n');
}
#endif

}  // namespace
}  // namespace wheelwright::testing
