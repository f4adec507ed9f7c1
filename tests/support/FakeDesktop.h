// A desktop that writes down what the program shows and answers what a test has prepared.
#pragma once

#include "screen/Desktop.h"

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace wheelwright::testing {

// What a test's person chooses in a file dialog; without an index the dialog's own stays.
struct FileChoice {
  std::string file;
  std::optional<int> filterIndex;
};

class FakeDesktop : public Desktop {
 public:
  void ShowInformation(const std::string& text) override { shown.push_back("information: " + text); }
  void ShowError(const std::string& text) override { shown.push_back("error: " + text); }
  bool AskQuestion(const std::string& text) override { return Ask("question: " + text); }
  bool AskYesNo(const std::string& text) override { return Ask("yesno: " + text); }
  void ShowOpen(FileDialog& dialog) override { Choose("open", dialog); }
  void ShowSave(FileDialog& dialog) override { Choose("save", dialog); }
  void SetPointer(Pointer itsPointer) override;
  void OpenWithShell(const std::string& file) override { shown.push_back("shell: " + file); }
  std::optional<PictureSize> SizeOfPicture(const std::string& file) override;
  void SetLanguage(const std::string& name) override { language = name; }
  void EndProgram() override { shown.emplace_back("end"); }

  // Prepared by the test. A question or dialog without an answer fails the test.
  std::deque<bool> answers;
  std::deque<std::optional<FileChoice>> choices;  // nothing: the dialog is cancelled
  std::map<std::string, PictureSize> pictures;    // by file; any other file can't be read as a picture

  // What happened, in order: "information: ...", "error: ...", "question: ...", "yesno: ...",
  // "open", "save", "hourglass", "normal", "shell: ...", "end".
  std::vector<std::string> shown;
  std::string language;
  // The dialogs as they came up.
  std::vector<FileDialog> dialogs;

 private:
  bool Ask(const std::string& what);
  void Choose(const char* kind, FileDialog& dialog);

  Pointer pointer_ = Pointer::Normal;
};

}  // namespace wheelwright::testing
