#include "gamefiles/LineEnds.h"

#include "core/Text.h"
#include "gamefiles/Lines.h"

namespace wheelwright {
namespace {

bool HasBareLineFeed(const std::string& text) {
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
    if (at == 0 || text[at - 1] != '\r') return true;
  }
  return false;
}

}  // namespace

void NormaliseLineEnds(Session& session) {
  const std::string text = session.files.Read(session.vars.CurrentFile);
  if (!HasBareLineFeed(text)) return;
  std::string rewritten;
  rewritten.reserve(text.size() + text.size() / 8);
  for (const std::string_view line : Lines(text)) {
    for (const char byte : line) {
      if (byte == '\n') rewritten += '\r';
      rewritten += byte;
    }
  }
  rewritten += kLineEnd;
  session.files.Write(session.vars.CurrentFile, rewritten);
}

}  // namespace wheelwright
