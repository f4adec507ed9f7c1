// The desktop as Qt reaches it.
#pragma once

#include "screen/Desktop.h"

#include <QMessageBox>
#include <QString>

namespace wheelwright {

class QtDesktop : public Desktop {
 public:
  void ShowInformation(const std::string& text) override;
  void ShowError(const std::string& text) override;
  bool AskQuestion(const std::string& text) override;
  bool AskYesNo(const std::string& text) override;
  void ShowOpen(FileDialog& dialog) override;
  void ShowSave(FileDialog& dialog) override;
  void SetPointer(Pointer pointer) override;
  void OpenWithShell(const std::string& file) override;
  std::optional<PictureSize> SizeOfPicture(const std::string& file) override;
  void EndProgram() override;

  // Whether the program has been asked to end; the event loop, if it runs, ends soon.
  bool Ended() const { return ended_; }

 private:
  bool ended_ = false;
  // Where the last file was chosen; the next dialog without a file of its own starts there.
  QString lastDirectory_;
};

// A box of that kind above the active window, its text (UTF-8) never read as markup.
QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const std::string& text,
                                    QMessageBox::StandardButtons buttons);

}  // namespace wheelwright
