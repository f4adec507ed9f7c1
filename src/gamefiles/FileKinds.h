// The three kinds of game file: how each is told, named and shown.
#pragma once

#include "core/Vars.h"
#include "screen/MainWindow.h"
#include "screen/Session.h"

#include <array>

namespace wheelwright {

struct FileKind {
  FileType type;
  int filterIndex;
  const char* ending;           // the last characters of the name, compared with case
  const char* endingOfBackups;  // the same of a backup
  int langName;                 // the kind's name in file dialogs
  TabGroup FrmMain::*tabs;
};

inline constexpr std::array<FileKind, 3> kFileKinds = {{
    {kHandlingFile, 1, "cfg", "cfg.backup", 14, &FrmMain::SSTab1},
    {kDefinitionFile, 2, "ide", "ide.backup", 122, &FrmMain::SSTab2},
    {kColorFile, 3, "dat", "dat.backup", 152, &FrmMain::SSTab3},
}};

// The kind for a name and the filter index of the dialog that chose it; null if they don't agree.
const FileKind* KindOfFile(const std::string& name, int filterIndex);

// The filter of all three kinds with their backups, for the open dialog.
std::string FilterOfAllKinds(const Session& session);

// The filter of one kind: its name, " (*.cfg)|*.cfg|".
std::string FilterOfKind(const Session& session, const FileKind& kind);

}  // namespace wheelwright
