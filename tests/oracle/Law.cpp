#include "oracle/Law.h"

namespace wheelwright::testing {
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

void RequireSameText(std::string_view found, std::string_view expected, std::string_view law) {
  if (found == expected) return;
  throw LawBroken(std::string(law) + "\n--- found\n" + Visible(found) + "\n--- expected\n" +
                  Visible(expected) + "\n---");
}

}  // namespace wheelwright::testing
