#include "fuzz/FuzzInput.h"

#include <cstddef>
#include <cstdint>

namespace wheelwright::fuzz {

std::string FuzzInput::Take() {
  constexpr std::string_view kDivider = "\n==\n";
  const std::size_t end = rest_.find(kDivider);
  const std::string text(rest_.substr(0, end));
  rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + kDivider.size());
  return text;
}

std::vector<std::string> FuzzInput::TakeLines() {
  std::vector<std::string> lines;
  for (const char byte : "\n" + Take()) {
    if (byte == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += byte;
    }
  }
  const bool isEmpty = lines.size() == 1 && lines[0].empty();
  return isEmpty ? std::vector<std::string>() : lines;
}

}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::Try(wheelwright::fuzz::FuzzInput({reinterpret_cast<const char*>(data), size}));
  return 0;
}
