// A whole session of the program over fakes: wired, with a language table whose entry n is "Ennn",
// and not started up. Nothing outside the test is touched.
#pragma once

#include "core/Settings.h"
#include "screen/Session.h"
#include "support/FakeDesktop.h"
#include "support/MemoryFiles.h"
#include "support/TableTexts.h"
#include "support/VehicleTokens.h"

#include <map>
#include <string>
#include <utility>

namespace wheelwright::testing {

class MemorySettings : public Settings {
 public:
  std::optional<std::string> Get(const std::string& section, const std::string& key) const override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override {
    values[{section, key}] = value;
  }

  std::map<std::pair<std::string, std::string>, std::string> values;
};

// "E012" for 12.
std::string LangText(int entry);

class TestSession {
 public:
  TestSession();

  // Puts a file on the disk and opens it as a person would, through cmdOpen's click and the dialog.
  void Open(const std::string& path, const std::string& text, int filterIndex);
  void OpenHandling(const std::string& text) { Open(kHandlingPath, text, 1); }
  void OpenDefinition(const std::string& text) { Open(kDefinitionPath, text, 2); }
  void OpenColors(const std::string& text) { Open(kColorPath, text, 3); }

  // The bytes of a file on the disk; fails the test if it isn't there.
  std::string Disk(const std::string& path) const;

  // The last thing the desktop showed, empty if nothing was.
  std::string LastShown() const { return desktop.shown.empty() ? "" : desktop.shown.back(); }

  static constexpr const char* kHandlingPath = "/game/handling.cfg";
  static constexpr const char* kDefinitionPath = "/game/default.ide";
  static constexpr const char* kColorPath = "/game/carcols.dat";

  FakeDesktop desktop;
  MemorySettings settings;
  MemoryFiles files;
  Session session{desktop, settings, files};
  Vars& vars = session.vars;
  FrmMain& main = session.main;
  FrmError& error = session.error;
  FrmExport& exporter = session.exporter;
};

}  // namespace wheelwright::testing
