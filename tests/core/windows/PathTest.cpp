#include "core/windows/WideText.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

const std::string kLong(240, 'a');
const std::wstring kLongWide(240, L'a');

TEST(WindowsPathTest, AShortPathStaysAsItIs) {
  EXPECT_EQ(DiskPath("Z:/games/../Grüße.cfg"), L"Z:/games/../Gr\u00FC\u00DFe.cfg");
  EXPECT_EQ(DiskPath("a.cfg"), L"a.cfg");
  EXPECT_EQ(DiskPath(""), L"");
}

TEST(WindowsPathTest, ALongPathIsFullAndMarked) {
  EXPECT_EQ(DiskPath("Z:\\games\\" + kLong + "\\a.cfg"), L"\\\\?\\Z:\\games\\" + kLongWide + L"\\a.cfg");
  EXPECT_EQ(DiskPath("Z:/games/other/../" + kLong + "/a.cfg"),
            L"\\\\?\\Z:\\games\\" + kLongWide + L"\\a.cfg");
}

TEST(WindowsPathTest, ALongPathToAnotherMachineIsMarkedAsSuch) {
  EXPECT_EQ(DiskPath("\\\\server\\share\\" + kLong + "\\a.cfg"),
            L"\\\\?\\UNC\\server\\share\\" + kLongWide + L"\\a.cfg");
}

TEST(WindowsPathTest, AMarkedPathStaysAsItIs) {
  EXPECT_EQ(DiskPath("\\\\?\\Z:\\" + kLong + "\\a.cfg"), L"\\\\?\\Z:\\" + kLongWide + L"\\a.cfg");
}

TEST(WindowsPathTest, TheMarkComesWithThe248thCharacter) {
  const std::string folder = "Z:\\" + kLong;
  EXPECT_EQ(DiskPath(folder + "\\abc").size(), 247U);
  EXPECT_EQ(DiskPath(folder + "\\abcd").size(), 248U + 4U);
}

}  // namespace
}  // namespace wheelwright::testing
