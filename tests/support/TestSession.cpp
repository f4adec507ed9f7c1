#include "support/TestSession.h"

#include "forms/Wiring.h"
#include "language/LanguageFiles.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {

std::optional<std::string> MemorySettings::Get(const std::string& section, const std::string& key) const {
  const auto found = values.find({section, key});
  if (found == values.end()) return std::nullopt;
  return found->second;
}

std::string LangText(int entry) {
  std::string digits = std::to_string(entry);
  return "E" + std::string(3 - digits.size(), '0') + digits;
}

TestSession::TestSession() {
  WireEvents(session);
  vars.AppPath = "/app/";
  for (int entry = 0; entry < 182; ++entry) vars.Lang[static_cast<std::size_t>(entry)] = LangText(entry);
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
