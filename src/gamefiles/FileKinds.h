// The three kinds of game file: how each is told, named and shown, and what the commands do with
// it.
#pragma once

#include "core/Vars.h"
#include "screen/Session.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace wheelwright {

enum class Snapshots { Take, PutBack };

// Of a backup's name, behind that of its file.
inline constexpr const char* kBackupEnding = ".backup";

struct FileKind {
  FileType type;
  int filterIndex;
  std::string ending;  // the last characters of the name, compared with case; those of a backup follow
  LangEntry name;      // in file dialogs
  bool hasAuthor;      // whether it names its author and date
  bool hasSaveFilter;  // whether a save dialog has a filter of the kind's own
  TabGroup FrmMain::*tabs;

  // Fills snapshots, tables and lists from the text of a file. Gives the number of the line that
  // damaged the load, if one did. A failure leaves what was read until then.
  std::optional<int> (*load)(Session& session, std::string_view text);
  // The new text of the open file.
  std::string (*rewritten)(Session& session, const std::string& target);
  // Copies the tables over their snapshots, or the snapshots over their tables.
  void (*copy)(Vars& vars, Snapshots way);
  // Fills the emptied cmbAutos, and other lists that hang on the tables, from the tables.
  void (*fillLists)(Session& session);
};

// In the order of FileType.
extern const std::array<FileKind, 3> kFileKinds;

// The kind of the open file.
const FileKind& KindOfOpenFile(const Vars& vars);

// The kind for a name and the filter index of the dialog that chose it; null if they don't agree.
const FileKind* KindOfFile(const std::string& name, int filterIndex);

// The filter of all three kinds with their backups, for the open dialog.
std::string FilterOfAllKinds(const Session& session);

// The filter of one kind: its name, " (*.cfg)|*.cfg|".
std::string FilterOfKind(const Session& session, const FileKind& kind);

// Adds the colours of lstColors to both lists of the pairs and chooses the first in each.
void FillColorPickLists(FrmMain& main);

// Reads, then takes over what was read; that too if the reading fails.
template <class Read, class Take>
void ReadAndTake(const Read& read, const Take& take) {
  try {
    read();
  } catch (...) {
    take();
    throw;
  }
  take();
}

}  // namespace wheelwright
