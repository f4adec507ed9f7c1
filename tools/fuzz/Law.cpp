#include "fuzz/Law.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace wheelwright::fuzz {
namespace {

std::string Visible(std::string_view text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string visible;
  for (const char byte : text) {
    const auto number = static_cast<unsigned char>(byte);
    if (number >= 0x20 && number < 0x7F && byte != '\\') {
      visible += byte;
    } else if (byte == '\n') {
      visible += "\\n\n";
    } else {
      visible += {'\\', 'x', kDigits[number / 16], kDigits[number % 16]};
    }
  }
  return visible;
}

}  // namespace

void EndWithBrokenLaw(std::string_view law) {
  std::fprintf(stderr, "A law is broken: %.*s\n", static_cast<int>(law.size()), law.data());
  std::abort();
}

void RequireSameText(std::string_view found, std::string_view expected, std::string_view law) {
  if (found == expected) return;
  std::fprintf(stderr, "--- found\n%s\n--- expected\n%s\n---\n", Visible(found).c_str(),
               Visible(expected).c_str());
  EndWithBrokenLaw(law);
}

}  // namespace wheelwright::fuzz

// The fakes of the tests report a question that nobody prepared an answer for as a failed test;
// here that is a finding too.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  ::testing::GTEST_FLAG(break_on_failure) = true;
  return 0;
}
