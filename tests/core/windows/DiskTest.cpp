#include "core/DiskFiles.h"
#include "core/windows/WideText.h"
#include "support/Thrown.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>
// clang-format off
#include <windows.h>
#include <sddl.h>
// clang-format on

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;

constexpr DWORD kReadOnlyHiddenSystem =
    FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr int kPermissionDenied = 70;
constexpr int kNoAccess = 75;
constexpr int kPathNotFound = 76;

// Files in a folder of the test's own.
class WindowsDiskTest : public ::testing::Test {
 protected:
  WindowsDiskTest() { fs::create_directory(folder_); }
  ~WindowsDiskTest() override { RemoveAll(folder_.wstring()); }

  std::string In(const std::string& name) const { return Utf8Of(folder_.wstring()) + "\\" + name; }

  // Also what is too deep for other means.
  static void RemoveAll(const std::wstring& folder) {
    WIN32_FIND_DATAW found{};
    HANDLE search = FindFirstFileW((L"\\\\?\\" + folder + L"\\*").c_str(), &found);
    do {
      const std::wstring name = found.cFileName;
      const std::wstring path = folder + L"\\" + name;
      if (name == L"." || name == L"..") continue;
      if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        RemoveAll(path);
      } else {
        SetFileAttributesW((L"\\\\?\\" + path).c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW((L"\\\\?\\" + path).c_str());
      }
    } while (FindNextFileW(search, &found) != FALSE);
    FindClose(search);
    RemoveDirectoryW((L"\\\\?\\" + folder).c_str());
  }

  static DWORD AttributesOf(const std::string& path) { return GetFileAttributesW(WideOf(path).c_str()); }
  static void SetAttributes(const std::string& path, DWORD attributes) {
    ASSERT_NE(SetFileAttributesW(WideOf(path).c_str(), attributes), FALSE);
  }

  // "D:" and the rights, or "O:" and the owner.
  static std::wstring Written(const std::string& path, SECURITY_INFORMATION what) {
    std::vector<char> rights(4096);
    DWORD size = 0;
    GetFileSecurityW(WideOf(path).c_str(), what, rights.data(), 4096, &size);
    wchar_t* text = nullptr;
    ConvertSecurityDescriptorToStringSecurityDescriptorW(rights.data(), SDDL_REVISION_1, what, &text,
                                                         nullptr);
    std::wstring written = text == nullptr ? L"" : text;
    LocalFree(text);
    return written;
  }

  static std::wstring RightsOf(const std::string& path) { return Written(path, DACL_SECURITY_INFORMATION); }

  // Makes folders in the folder until a path in them is longer than 260 characters.
  std::string MakeDeepFolder() const {
    std::wstring deep = folder_.wstring();
    while (deep.size() < 300) {
      deep += L"\\" + std::wstring(100, L'd');
      CreateDirectoryW((L"\\\\?\\" + deep).c_str(), nullptr);
    }
    return Utf8Of(deep);
  }

  int WriteFailure(const std::string& path) {
    return NumberThrownBy([&] { files_.Write(path, "new"); });
  }

  fs::path folder_ = fs::temp_directory_path() / ("disk-" + std::to_string(std::random_device{}()));
  DiskFiles files_;
};

TEST_F(WindowsDiskTest, ANameMayHaveEveryCharacter) {
  const std::string name = "Grüße Ω 日本 \xF0\x9F\x9A\x97.cfg";
  files_.Write(In(name), "x");
  EXPECT_NE(AttributesOf(In(name)), INVALID_FILE_ATTRIBUTES);
  EXPECT_TRUE(files_.Exists(In(name)));
  EXPECT_EQ(files_.Read(In(name)), "x");
  EXPECT_EQ(files_.List(In("")), std::vector<std::string>{name});
}

TEST_F(WindowsDiskTest, APathMayBeLongerThan260Characters) {
  const std::string deep = MakeDeepFolder();
  const std::string path = deep + "\\" + std::string(100, 'f') + ".cfg";
  files_.Write(path, "x");
  EXPECT_TRUE(files_.Exists(path));
  EXPECT_EQ(files_.Read(path), "x");
  files_.Copy(path, path + ".backup");
  EXPECT_EQ(files_.List(deep), (std::vector<std::string>{std::string(100, 'f') + ".cfg",
                                                         std::string(100, 'f') + ".cfg.backup"}));
  SetFileAttributesW((L"\\\\?\\" + WideOf(path)).c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(WriteFailure(path), kNoAccess);
  files_.ClearAttributes(path);
  EXPECT_EQ(WriteFailure(path), 0);
}

TEST_F(WindowsDiskTest, ALongPathMayHaveSlashesAndStepsUpwards) {
  const std::string deep = MakeDeepFolder();
  files_.Write(deep + "/../" + std::string(100, 'd') + "/a.cfg", "x");
  EXPECT_EQ(files_.Read(deep + "\\a.cfg"), "x");
}

TEST_F(WindowsDiskTest, ALongPathIntoNothingIsFailure76) {
  EXPECT_EQ(WriteFailure(MakeDeepFolder() + "\\missing\\a.cfg"), kPathNotFound);
}

TEST_F(WindowsDiskTest, SlashesSeparateToo) {
  files_.Write(In("a.cfg"), "x");
  const std::string folder = Utf8Of(folder_.generic_wstring());
  EXPECT_TRUE(files_.Exists(folder + "/a.cfg"));
  EXPECT_EQ(files_.List(folder), std::vector<std::string>{"a.cfg"});
}

TEST_F(WindowsDiskTest, CapitalsMakeNoOtherFile) {
  files_.Write(In("a.cfg"), "x");
  EXPECT_TRUE(files_.Exists(In("A.CFG")));
}

TEST_F(WindowsDiskTest, ClearingTheAttributesClearsThemAll) {
  files_.Write(In("a.cfg"), "old");
  SetAttributes(In("a.cfg"), kReadOnlyHiddenSystem);
  EXPECT_EQ(WriteFailure(In("a.cfg")), kNoAccess);
  files_.ClearAttributes(In("a.cfg"));
  EXPECT_EQ(AttributesOf(In("a.cfg")) & kReadOnlyHiddenSystem, 0U);
  EXPECT_EQ(WriteFailure(In("a.cfg")), 0);
  EXPECT_EQ(files_.Read(In("a.cfg")), "new");
}

TEST_F(WindowsDiskTest, AHiddenFileIsThereAndIsListed) {
  files_.Write(In("a.cfg"), "x");
  SetAttributes(In("a.cfg"), FILE_ATTRIBUTE_HIDDEN);
  EXPECT_TRUE(files_.Exists(In("a.cfg")));
  EXPECT_EQ(files_.Read(In("a.cfg")), "x");
  EXPECT_EQ(files_.List(In("")), std::vector<std::string>{"a.cfg"});
}

TEST_F(WindowsDiskTest, AFileThatAnotherProgramKeepsToItselfIsFailure70) {
  files_.Write(In("a.cfg"), "x");
  HANDLE held = CreateFileW(WideOf(In("a.cfg")).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(NumberThrownBy([&] { files_.Read(In("a.cfg")); }), kPermissionDenied);
  EXPECT_EQ(WriteFailure(In("a.cfg")), kPermissionDenied);
  EXPECT_TRUE(files_.Exists(In("a.cfg")));
  CloseHandle(held);
  EXPECT_EQ(files_.Read(In("a.cfg")), "x");
}

TEST_F(WindowsDiskTest, AttributesThatCantBeClearedStopNothing) {
  files_.ClearAttributes(In("a.cfg"));
  EXPECT_FALSE(files_.Exists(In("a.cfg")));
}

TEST_F(WindowsDiskTest, AttributesStayWhenAFileIsWritten) {
  files_.Write(In("a.cfg"), "a longer text");
  SetAttributes(In("a.cfg"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  files_.Write(In("a.cfg"), "new");
  EXPECT_EQ(AttributesOf(In("a.cfg")) & kReadOnlyHiddenSystem,
            static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
  EXPECT_EQ(files_.Read(In("a.cfg")), "new");
}

TEST_F(WindowsDiskTest, WhatIsNoFileIsFailure75) {
  const std::string pipe = R"(\\.\pipe\wheelwright-disk-test)";
  HANDLE server =
      CreateNamedPipeW(WideOf(pipe).c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 2, 0, 0, 0, nullptr);
  ASSERT_NE(server, INVALID_HANDLE_VALUE);
  for (const std::string& path : {pipe, std::string("NUL")}) {
    EXPECT_EQ(WriteFailure(path), kNoAccess) << path;
    EXPECT_EQ(NumberThrownBy([&] { files_.Read(path); }), kNoAccess) << path;
  }
  CloseHandle(server);
}

TEST_F(WindowsDiskTest, ATextWithoutRoomLeavesTheFile) {
  files_.Write(In("a.cfg"), "old");
  const std::string_view tooLong("x", std::size_t{1} << 62U);
  EXPECT_NE(NumberThrownBy([&] { files_.Write(In("a.cfg"), tooLong); }), 0);
  EXPECT_EQ(files_.Read(In("a.cfg")), "old");
  EXPECT_NE(NumberThrownBy([&] { files_.Write(In("new.cfg"), tooLong); }), 0);
  EXPECT_FALSE(files_.Exists(In("new.cfg")));
}

TEST_F(WindowsDiskTest, RoomIsCheckedWithoutAChange) {
  files_.Write(In("a.cfg"), "old");
  files_.CheckRoom(In("a.cfg"), "a longer text");
  files_.CheckRoom(In("new.cfg"), "a text");
  files_.CheckRoom(In("missing\\new.cfg"), "a text");
  EXPECT_EQ(files_.Read(In("a.cfg")), "old");
  EXPECT_FALSE(files_.Exists(In("new.cfg")));
}

TEST_F(WindowsDiskTest, ANewCopyHasTheRightsOfItsModel) {
  files_.Write(In("a.cfg"), "x");
  const std::wstring owner = Written(In("a.cfg"), OWNER_SECURITY_INFORMATION).substr(2);
  PSECURITY_DESCRIPTOR ownerAlone = nullptr;
  ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW((L"D:P(A;;FA;;;" + owner + L")").c_str(),
                                                                 SDDL_REVISION_1, &ownerAlone, nullptr),
            FALSE);
  ASSERT_NE(SetFileSecurityW(WideOf(In("a.cfg")).c_str(),
                             DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, ownerAlone),
            FALSE);
  LocalFree(ownerAlone);
  files_.Write(In("other.cfg"), "x");
  files_.Copy(In("a.cfg"), In("a.cfg.backup"));
  EXPECT_EQ(RightsOf(In("a.cfg.backup")), RightsOf(In("a.cfg")));
  EXPECT_NE(RightsOf(In("other.cfg")), RightsOf(In("a.cfg")));
}

TEST_F(WindowsDiskTest, AFolderWithoutANameListsNothing) {
  EXPECT_EQ(files_.List(""), std::vector<std::string>{});
}

}  // namespace
}  // namespace wheelwright::testing
