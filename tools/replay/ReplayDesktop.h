// Stands in for dialogs, boxes, pointer, shell and the end of the program: prints what the program
// asks for and takes the answers from the script.
#pragma once

#include "replay/Answers.h"
#include "replay/ResultLines.h"
#include "screen/Desktop.h"

#include <functional>
#include <optional>
#include <string>

namespace wheelwright::replay {

class ReplayDesktop : public Desktop {
 public:
  using PictureSizer = std::function<std::optional<PictureSize>(const std::string& file)>;

  ReplayDesktop(ResultLines& lines, PictureSizer sizer) : lines_(lines), sizer_(std::move(sizer)) {}

  Answers answers;

  Pointer CurrentPointer() const { return pointer_; }
  bool EndWasAsked() const { return endWasAsked_; }

  void ShowInformation(const std::string& text) override;
  void ShowError(const std::string& text) override;
  // The questions and dialogs throw ScriptError if no answer of their kind is waiting.
  bool AskQuestion(const std::string& text) override;
  bool AskYesNo(const std::string& text) override;
  void ShowOpen(FileDialog& dialog) override;
  void ShowSave(FileDialog& dialog) override;
  void SetPointer(Pointer pointer) override;
  void OpenWithShell(const std::string& file) override;
  std::optional<PictureSize> SizeOfPicture(const std::string& file) override;
  void SetLanguage(const std::string& /*name*/) override {}
  void EndProgram() override { endWasAsked_ = true; }

 private:
  bool Ask(const char* kind, const std::string& text);
  void ShowDialog(const char* kind, FileDialog& dialog);

  ResultLines& lines_;
  PictureSizer sizer_;
  Pointer pointer_ = Pointer::Normal;
  bool endWasAsked_ = false;
};

// "normal" or "hourglass".
const char* NameOf(Pointer pointer);

}  // namespace wheelwright::replay
