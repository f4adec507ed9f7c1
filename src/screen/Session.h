// One run of the program: what is known, what is shown, and the ports to the world outside. There
// are no globals; every handler is given the session it works on.
#pragma once

#include "core/Files.h"
#include "core/LangEntries.h"
#include "core/Settings.h"
#include "core/Vars.h"
#include "screen/Desktop.h"
#include "screen/MainWindow.h"
#include "screen/OtherWindows.h"

#include <functional>
#include <string>

namespace wheelwright {

struct Session {
  Session(Desktop& itsDesktop, Settings& itsSettings, Files& itsFiles)
      : desktop(itsDesktop), settings(itsSettings), files(itsFiles) {}

  Desktop& desktop;
  Settings& settings;
  Files& files;

  Vars vars;
  FrmMain main;
  FrmError error;
  FrmExport exporter;
};

// An entry of the language table as a message or caption in UTF-8.
std::string Message(const Session& session, LangEntry entry);

// A handler meets a failure in one of two ways: a guarded one catches it, any other lets it pass.
// Runs the steps of a guarded handler. A failure ends them: `atOnce` runs first, then a cancelled
// file dialog ends without a word and any other failure shows its message in an error box. What the
// steps did until then stays done.
void Guarded(Session& session, const std::function<void()>& steps, const std::function<void()>& atOnce = {});

}  // namespace wheelwright
