// The port to everything that reaches outside a window. Texts are UTF-8.
#pragma once

#include <optional>
#include <string>

namespace wheelwright {

// A common file dialog. What is set here stays set until it is set anew.
struct FileDialog {
  // Flags: ask before an existing file is overwritten; hide the read-only box; tick that box.
  static constexpr int kReadOnlyTicked = 1;
  static constexpr int kOverwritePrompt = 2;
  static constexpr int kHideReadOnly = 4;

  std::string title;
  std::string filter;   // "label|patterns|label|patterns|..."
  int filterIndex = 0;  // counted from 1; 0 is none
  std::string file;     // full path, preset before and chosen afterwards
  int flags = 0;
};

struct PictureSize {
  int width = 0;
  int height = 0;
};

enum class Pointer { Normal, Hourglass };

class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  virtual void ShowInformation(const std::string& text) = 0;
  virtual void ShowError(const std::string& text) = 0;
  // A box with a question mark, Yes and No; true for Yes.
  virtual bool AskQuestion(const std::string& text) = 0;
  // The plain box with Yes and No.
  virtual bool AskYesNo(const std::string& text) = 0;

  // Show the dialog and put the choice into it. Failure 32755 when it is cancelled; the dialog then
  // stays as it was.
  virtual void ShowOpen(FileDialog& dialog) = 0;
  virtual void ShowSave(FileDialog& dialog) = 0;

  virtual void SetPointer(Pointer pointer) = 0;

  // Opens a file with the desktop's own handler for it. The result isn't looked at.
  virtual void OpenWithShell(const std::string& file) = 0;

  // The natural size of a picture file; nothing if it can't be read as a picture.
  virtual std::optional<PictureSize> SizeOfPicture(const std::string& file) = 0;

  // The desktop's own words, as on the buttons of boxes, come in this language from now on, if it
  // speaks it. The name is the language's own: "Deutsch".
  virtual void SetLanguage(const std::string& name) = 0;

  // Ends the program once the handler that asks for it has returned.
  virtual void EndProgram() = 0;
};

}  // namespace wheelwright
