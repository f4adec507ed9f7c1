#include "support/TestSession.h"

#include "core/Text.h"
#include "forms/Wiring.h"
#include "language/ApplyLanguage.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>

namespace wheelwright::testing {

std::optional<std::string> MemorySettings::Get(const std::string& section,
                                               const std::string& key) const {
  const auto found = values.find({section, key});
  if (found == values.end()) return std::nullopt;
  return found->second;
}

std::string CrLf(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append(kLineEnd);
  return text;
}

std::string LangText(int entry) {
  std::string digits = std::to_string(entry);
  return "E" + std::string(3 - digits.size(), '0') + digits;
}

std::string VehicleLineOf(const std::string& name, const std::string& mass) {
  std::ostringstream line;
  line << std::left << std::setw(14) << name << ' ' << std::right << std::setw(7) << mass
       << " 1.9 4.6 1.5 0.0 0.1 -0.2 80 0.70 0.75 0.51 5 160.0 20.0 R P 6.1 0.60 0 35.0 1.6 0.08 "
          "0.20 0.50   9000 0.35 -0.16 0.5 0.3 0000003 0 1";
  return line.str();
}

TestSession::TestSession() {
  WireEvents(session);
  vars.AppPath = "/app/";
  for (int entry = 0; entry < 182; ++entry)
    vars.Lang[static_cast<std::size_t>(entry)] = LangText(entry);
  ApplyLanguage(session);
  main.SetVisible(true);
}

void TestSession::Open(const std::string& path, const std::string& text, int filterIndex) {
  files.contents[path] = text;
  desktop.choices.push_back(FileChoice{path, filterIndex});
  main.cmdOpen.ClickByHand();
}

std::string TestSession::Disk(const std::string& path) const {
  const auto found = files.contents.find(path);
  EXPECT_NE(found, files.contents.end()) << path << " isn't there";
  return found == files.contents.end() ? std::string() : found->second;
}

}  // namespace wheelwright::testing
