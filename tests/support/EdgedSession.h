// A session on any disk, entered as a toolkit does: a failure that nothing catches ends it.
#pragma once

#include "forms/EventEdge.h"
#include "support/TestSession.h"

#include <functional>
#include <string>

namespace wheelwright::testing {

// A language file: entry 12 is the letter and "012".
std::string LanguageTextOf(char letter);

// Writes the failure that ends the program down among what the desktop shows: "ends with 61".
class NotingEdge : public EventEdge {
 public:
  explicit NotingEdge(FakeDesktop& desktop) : desktop_(desktop) {}

 protected:
  void EndByFailure(const Failure& failure) override;
  void EndByOtherException() override { desktop_.shown.emplace_back("ends oddly"); }

 private:
  FakeDesktop& desktop_;
};

class EdgedSession {
 public:
  EdgedSession(FakeDesktop& itsDesktop, Files& itsFiles);

  // The start-up in that folder, which must hold a language.
  void Start(const std::string& folder);

  // Chooses a file that is there, with this index, in the open dialog.
  void Open(const std::string& path, int filterIndex);

  // What an event of a toolkit does.
  void Do(const std::function<void()>& event) { edge_.Enter(event); }
  void Click(Button& button) {
    Do([&button] { button.ClickByHand(); });
  }

  // Prepares the answer to the next question or dialog.
  void Answer(bool yes) { desktop.answers.push_back(yes); }
  void Choose(const std::string& file) { desktop.choices.push_back(FileChoice{file, {}}); }

  FakeDesktop& desktop;
  MemorySettings settings;
  Session session;
  Vars& vars = session.vars;
  FrmMain& main = session.main;
  FrmExport& exporter = session.exporter;

 private:
  NotingEdge edge_;
};

}  // namespace wheelwright::testing
