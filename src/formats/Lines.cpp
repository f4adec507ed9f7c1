#include "formats/Lines.h"

namespace wheelwright {
namespace {

bool HasBareLineFeed(std::string_view text) {
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) {
    if (at == 0 || text[at - 1] != '\r') return true;
  }
  return false;
}

}  // namespace

std::optional<std::string> WithoutBareLineFeeds(std::string_view text) {
  if (!HasBareLineFeed(text)) return std::nullopt;
  std::string rewritten;
  rewritten.reserve(text.size() + text.size() / 8);
  for (const std::string_view line : Lines(text)) {
    for (const char byte : line) {
      if (byte == '\n') rewritten += '\r';
      rewritten += byte;
    }
  }
  rewritten += kLineEnd;
  return rewritten;
}

}  // namespace wheelwright
