// The program's ports as Qt reaches them: the desktop, the settings in the place where the platform
// keeps a user's, and the edge of the event loop.
#pragma once

#include "core/Settings.h"
#include "forms/EventEdge.h"
#include "screen/Desktop.h"

#include <QMessageBox>
#include <QSettings>
#include <QString>
#include <QTranslator>

namespace wheelwright {

class QtDesktop : public Desktop {
 public:
  QtDesktop();

  void ShowInformation(const std::string& text) override;
  void ShowError(const std::string& text) override;
  bool AskQuestion(const std::string& text) override;
  bool AskYesNo(const std::string& text) override;
  void ShowOpen(FileDialog& dialog) override;
  void ShowSave(FileDialog& dialog) override;
  void SetPointer(Pointer pointer) override;
  void OpenWithShell(const std::string& file) override;
  std::optional<PictureSize> SizeOfPicture(const std::string& file) override;
  void SetLanguage(const std::string& name) override;
  void EndProgram() override;

  // Whether the program has been asked to end; the event loop, if it runs, ends soon.
  bool Ended() const { return ended_; }

 private:
  bool ended_ = false;
  // What the toolkit itself says; without a text it stays with its English.
  QTranslator words_;
  // Where the last file was chosen; the next dialog without a file of its own starts there.
  QString lastDirectory_;
};

class QtSettings : public Settings {
 public:
  QtSettings();

  std::optional<std::string> Get(const std::string& section, const std::string& key) const override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  QSettings store_;
};

// What no handler caught is shown in a box and ends the program with exit code 1.
class QtEdge : public EventEdge {
 public:
  // Whether a failure has ended the program; the event loop, if it runs, ends soon.
  bool HasFailed() const { return hasFailed_; }

 protected:
  void EndByFailure(const Failure& failure) override;
  void EndByOtherException() override;

 private:
  void End(const std::string& description);

  bool hasFailed_ = false;
};

}  // namespace wheelwright
