#include "support/EdgedSession.h"

#include "forms/Wiring.h"

namespace wheelwright::testing {

std::string LanguageTextOf(char letter) {
  constexpr int kUsedEntries = 182;
  std::string text;
  for (int entry = 0; entry < kUsedEntries; ++entry) {
    text += letter + LangText(entry).substr(1) + "\r\n";
  }
  return text;
}

void NotingEdge::EndByFailure(const Failure& failure) {
  desktop_.shown.push_back("ends with " + std::to_string(static_cast<int>(failure.Number())));
}

EdgedSession::EdgedSession(FakeDesktop& itsDesktop, Files& itsFiles)
    : desktop(itsDesktop), session(itsDesktop, settings, itsFiles), edge_(itsDesktop) {
  WireEvents(session);
}

void EdgedSession::Start(const std::string& folder) {
  Do([this, &folder] { StartUp(session, folder); });
}

void EdgedSession::Open(const std::string& path, int filterIndex) {
  desktop.choices.push_back(FileChoice{path, filterIndex});
  Click(main.cmdOpen);
}

}  // namespace wheelwright::testing
