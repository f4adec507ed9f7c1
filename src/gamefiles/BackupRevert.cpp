#include "gamefiles/BackupRevert.h"

#include "gamefiles/PaletteLabel.h"
#include "screen/Guarded.h"

#include <string>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

template <class Record>
std::vector<std::string> KeysOf(const Table<Record>& table, std::string Record::*key) {
  std::vector<std::string> keys;
  for (const Record& record : table.Walk()) keys.push_back(record.*key);
  return keys;
}

void RevertColors(Session& session) {
  Vars& vars = session.vars;
  FrmMain& main = session.main;
  vars.Colors = vars.Kopie_Colors;
  vars.CarColors = vars.Kopie_CarColors;
  main.lstColors.Clear();
  for (const ColorEntry& color : vars.Colors.Walk()) main.lstColors.AddRow(PaletteLabel(color));
  main.cmbAutos.AddRows(KeysOf(vars.CarColors, &CarColorEntry::ModelName));
  main.cmbColor1.Clear();
  main.cmbColor2.Clear();
  main.cmbColor1.AddRows(main.lstColors.Rows());
  main.cmbColor2.AddRows(main.lstColors.Rows());
  main.cmbColor1.Choose(0);
  main.cmbColor2.Choose(0);
}

void RevertTables(Session& session) {
  Vars& vars = session.vars;
  switch (vars.CurrentFileType) {
    case kHandlingFile:
      vars.Cars = vars.Kopie_Cars;
      session.main.cmbAutos.AddRows(KeysOf(vars.Cars, &Car::CarName));
      break;
    case kDefinitionFile:
      vars.Ides = vars.Kopie_Ides;
      session.main.cmbAutos.AddRows(KeysOf(vars.Ides, &IdeEntry::HandlingID));
      break;
    case kColorFile:
      RevertColors(session);
      break;
  }
}

}  // namespace

void BackupFile(Session& session) {
  const std::string& file = session.vars.CurrentFile;
  if (file.empty()) return;
  const std::string backup = file + ".backup";
  const bool replaces = session.files.Exists(backup);
  if (replaces && !session.desktop.AskYesNo(Message(session, 61))) return;
  Guarded(session, [&] {
    session.files.Copy(file, backup);
    session.desktop.ShowInformation(Message(session, 60) + "\r\n" + backup);
  });
}

void RevertToSnapshot(Session& session) {
  Guarded(session, [&] {
    if (!session.desktop.AskYesNo(Message(session, 98))) return;
    session.main.cmbAutos.Clear();
    RevertTables(session);
    session.main.cmbAutos.Choose(0);
    session.desktop.ShowInformation(Message(session, 99));
  });
}

}  // namespace wheelwright
