// The code page that Windows has been set to.
#include "core/CodePage.h"
#include "core/windows/WindowsCodePage.h"

#include <windows.h>

namespace wheelwright {
namespace {

const WindowsCodePage& Page() {
  static const WindowsCodePage page(GetACP());
  return page;
}

}  // namespace

const std::array<char, 256> codepage::kLowerCase = Page().LowerCaseTable();

std::string ToUnicode(std::string_view codePageText) { return Page().ToUnicode(codePageText); }

std::string FromUnicode(std::string_view utf8) { return Page().FromUnicode(utf8); }

}  // namespace wheelwright
