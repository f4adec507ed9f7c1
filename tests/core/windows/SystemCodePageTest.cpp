#include "core/CodePage.h"
#include "core/windows/WindowsCodePage.h"

#include <gtest/gtest.h>
#include <iostream>
#include <windows.h>

namespace wheelwright::testing {
namespace {

TEST(SystemCodePageTest, TextsAreReadInThePageThatWindowsIsSetTo) {
  std::cout << "code page " << GetACP() << "\n";
  const WindowsCodePage page(GetACP());
  for (int number = 0; number < 256; ++number) {
    const std::string byte(1, static_cast<char>(number));
    EXPECT_EQ(ToUnicode(byte), page.ToUnicode(byte)) << number;
    EXPECT_EQ(FromUnicode(ToUnicode(byte)), byte) << number;
  }
  EXPECT_EQ(codepage::kLowerCase, page.LowerCaseTable());
}

}  // namespace
}  // namespace wheelwright::testing
