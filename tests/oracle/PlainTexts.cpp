#include "oracle/PlainTexts.h"

#include "core/Text.h"
#include "support/TableTexts.h"

namespace wheelwright::testing {
namespace {

bool Begins(std::string_view line, const std::string& name) { return line.substr(0, name.size()) == name; }

}  // namespace

std::string CutBlanks(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

bool HoldsInAnyCase(const std::string& text, const std::string& part) {
  return FoldedCase(text).find(FoldedCase(part)) != std::string::npos;
}

std::vector<std::string> PlainLines(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      line += text[i];
      continue;
    }
    lines.push_back(line);
    line.clear();
    if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

std::string NormalisedPlainly(const std::string& text) {
  std::string joined;
  for (const std::string& line : PlainLines(text)) joined += line;
  if (joined.find('\n') == std::string::npos) return text;
  std::string rewritten;
  for (const char byte : joined) rewritten += byte == '\n' ? "\r\n" : std::string(1, byte);
  return rewritten + "\r\n";
}

std::vector<std::string> PlainTokens(std::string line) {
  for (char& byte : line) {
    if (byte == '\t') byte = ' ';
  }
  for (auto at = line.find("  "); at != std::string::npos; at = line.find("  ")) line.erase(at, 1);
  line = CutBlanks(line);
  std::vector<std::string> tokens;
  while (!line.empty()) {
    const std::string token = line.substr(0, line.find(' '));
    tokens.push_back(token);
    line = CutBlanks(line.substr(token.size()));
  }
  return tokens;
}

std::string WithoutBlanksAndTabs(const std::string& line) {
  std::string rest;
  for (const char byte : line) {
    if (byte != ' ' && byte != '\t') rest += byte;
  }
  return rest;
}

std::vector<std::string> SplitAtCommas(const std::string& text) {
  if (text.empty()) return {};
  std::vector<std::string> parts(1);
  for (const char byte : text) {
    if (byte == ',') {
      parts.emplace_back();
    } else {
      parts.back() += byte;
    }
  }
  return parts;
}

std::string TakeCommaField(std::string& line, std::size_t index) {
  line = WithoutBlanksAndTabs(line);
  if (!line.empty() && line.back() == ',') line.pop_back();
  const std::vector<std::string> parts = SplitAtCommas(line);
  return index < parts.size() ? parts[index] : "";
}

bool HoldsBanner(const std::string& line) {
  const std::vector<std::string> banner = PlainLines(kBanner);
  const std::string withoutVersion = banner[0].substr(0, banner[0].find("1.0.0"));
  return HoldsInAnyCase(line, withoutVersion) || HoldsInAnyCase(line, banner[1]);
}

std::vector<NameHit> WalkForBeginnings(const std::vector<std::string>& names, std::string_view line) {
  std::vector<NameHit> hits;
  for (std::size_t j = 0; j < names.size(); ++j) {
    if (Begins(line, names[j])) hits.push_back({static_cast<int>(j), true});
  }
  return hits;
}

std::vector<NameHit> WalkForNamesAnywhere(const std::vector<std::string>& names, std::string_view line) {
  const std::string folded = FoldedCase(line);
  std::vector<NameHit> hits;
  for (std::size_t j = 0; j < names.size(); ++j) {
    if (folded.find(FoldedCase(names[j])) == std::string::npos) continue;
    hits.push_back({static_cast<int>(j), Begins(line, names[j])});
  }
  return hits;
}

}  // namespace wheelwright::testing
