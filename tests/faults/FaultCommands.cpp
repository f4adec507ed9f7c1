#include "faults/FaultCommands.h"

#include "forms/Wiring.h"
#include "support/HeldTables.h"

namespace wheelwright::testing {
namespace {

constexpr const char* kOld = "/game/old.cfg";
constexpr const char* kHandling = "/game/handling.cfg";
constexpr const char* kDefinition = "/game/default.ide";
constexpr const char* kColors = "/game/carcols.dat";
constexpr const char* kCopy = "/game/copy";
constexpr const char* kSwap = "/game/swap.cfg";

std::string WithBareLineFeeds(std::string text) {
  std::erase(text, '\r');
  return text;
}

std::string HandlingText() {
  return CrLf({"; Author: Ann", VehicleLineOf("BUS", "8"), VehicleLineOf("VAN", "8")});
}

std::string DefinitionText() {
  return CrLf({"cars", "130, bus, bus, boat, BUS, BUS, null, normal, 30, 7, 0",
               "131, van, van, boat, VAN, VAN, null, normal, 30, 7, 0", "end"});
}

std::string ColorText() {
  return CrLf({"col", "0,0,0\t\t\t\t# 0 black", "9,9,9\t\t\t\t# 1 grey", "end", "car", "bus, 0, 1", "end"});
}

// Puts the three game files on the disk and says what another program would make of them.
void PutGameFiles(FaultySession& s) {
  s.files.disk.contents[kHandling] = HandlingText();
  s.files.disk.contents[kDefinition] = DefinitionText();
  s.files.disk.contents[kColors] = ColorText();
  s.files.changedTexts[kHandling] = CrLf({"; another", VehicleLineOf("CAB", "9")});
  s.files.changedTexts[kDefinition] =
      CrLf({"# another", "cars", "140, cab, cab, boat, CAB, CAB, null, normal, 30, 7, 0", "end"});
  s.files.changedTexts[kColors] =
      CrLf({"# another", "col", "5,5,5\t\t\t\t# 0 dust", "end", "car", "cab, 0, 0", "end"});
}

// Another handling file is open, one edit pending, and the three other files have bare line feeds.
void BeforeOpening(FaultySession& s) {
  PutGameFiles(s);
  for (const char* path : {kHandling, kDefinition, kColors}) {
    s.files.disk.contents[path] = WithBareLineFeeds(s.files.disk.contents[path]);
  }
  s.files.disk.contents[kOld] = CrLf({VehicleLineOf("OLD", "8")});
  s.files.changedTexts[kOld] = CrLf({VehicleLineOf("OLDER")});
  s.Start();
  s.Open(kOld, 1);
  s.main.txtGewicht.EditByHand("7");
  s.Answer(true);
}

void WithHandlingUnchanged(FaultySession& s) {
  PutGameFiles(s);
  s.Start();
  s.Open(kHandling, 1);
}

void WithHandling(FaultySession& s) {
  WithHandlingUnchanged(s);
  s.main.txtGewicht.EditByHand("7");
}

void WithDefinitions(FaultySession& s) {
  PutGameFiles(s);
  s.Start();
  s.Open(kDefinition, 2);
  s.main.txtModelName.EditByHand("coach");
}

void WithColors(FaultySession& s) {
  PutGameFiles(s);
  s.Start();
  s.Open(kColors, 3);
  s.main.lstColors.ChooseByHand(0);
  s.main.HScroll1.MoveByHand(99);
}

void PutTarget(FaultySession& s) {
  s.files.disk.contents[kCopy] = "an earlier copy";
  s.files.changedTexts[kCopy] = "another copy";
  s.Choose(kCopy);
}

void HandlingAndTarget(FaultySession& s) {
  WithHandling(s);
  PutTarget(s);
}

void DefinitionsAndTarget(FaultySession& s) {
  WithDefinitions(s);
  PutTarget(s);
}

void ColorsAndTarget(FaultySession& s) {
  WithColors(s);
  PutTarget(s);
}

void BeforeBackup(FaultySession& s) {
  WithHandling(s);
  s.files.disk.contents["/game/handling.cfg.backup"] = "an earlier backup";
  s.files.changedTexts["/game/handling.cfg.backup"] = "another backup";
  s.Answer(true);
}

void BeforeRevert(FaultySession& s) {
  WithHandling(s);
  s.Answer(true);
}

void BeforeExport(FaultySession& s) {
  HandlingAndTarget(s);
  s.main.cmdExportCar.ClickByHand();
  s.exporter.cmdAddAll.ClickByHand();
}

// The imported vehicle comes first in the list, so that it is shown.
void BeforeImport(FaultySession& s) {
  WithHandlingUnchanged(s);
  s.files.disk.contents[kSwap] = CrLf({VehicleLineOf("AXO", "2")});
  s.files.changedTexts[kSwap] = CrLf({VehicleLineOf("AYO", "3")});
  s.Choose(kSwap);
}

void BeforeDeletion(FaultySession& s) {
  WithHandling(s);
  PickByHand(s.main.cmbAutos, "VAN");
  s.Answer(true);
}

void JustStarted(FaultySession& s) { s.Start(); }

void NotStarted(FaultySession&) {}

void OpenDefinitions(FaultySession& s) { s.Open(kDefinition, 2); }
void OpenHandling(FaultySession& s) { s.Open(kHandling, 1); }
void OpenColors(FaultySession& s) { s.Open(kColors, 3); }

void Save(FaultySession& s) { s.Click(s.main.cmdSave); }
void SaveAs(FaultySession& s) { s.Click(s.main.cmdSaveAs); }

void PickBus(FaultySession& s) {
  s.Do([&s] { PickByHand(s.main.cmbAutos, "BUS"); });
}

void PickEnglish(FaultySession& s) {
  s.Do([&s] { PickByHand(s.main.cmbSprache, "English"); });
}

}  // namespace

const std::vector<FaultCommand>& FaultCommands() {
  static const std::vector<FaultCommand> commands = {
      {"start", NotStarted, [](FaultySession& s) { s.Start(); }},
      {"choose a language", WithHandling, PickEnglish},
      {"open a handling file", BeforeOpening, OpenHandling},
      {"open a definition file", BeforeOpening, OpenDefinitions},
      {"open a colour file", BeforeOpening, OpenColors},
      {"save a handling file", WithHandling, Save},
      {"save a definition file", WithDefinitions, Save},
      {"save a colour file", WithColors, Save},
      {"save a handling file as", HandlingAndTarget, SaveAs},
      {"save a definition file as", DefinitionsAndTarget, SaveAs},
      {"save a colour file as", ColorsAndTarget, SaveAs},
      {"back up", BeforeBackup, [](FaultySession& s) { s.Click(s.main.cmdBackup); }},
      {"revert", BeforeRevert, [](FaultySession& s) { s.Click(s.main.cmdUndo); }},
      {"show a vehicle", WithHandling, PickBus},
      {"show a definition", WithDefinitions, PickBus},
      {"delete a vehicle", BeforeDeletion, [](FaultySession& s) { s.Click(s.main.cmdDeleteCar); }},
      {"export", BeforeExport, [](FaultySession& s) { s.Click(s.exporter.cmdExport); }},
      {"write the tuning list", BeforeExport, [](FaultySession& s) { s.Click(s.exporter.Spez); }},
      {"import", BeforeImport, [](FaultySession& s) { s.Click(s.main.cmdImportCar); }},
      {"open the manual", JustStarted, [](FaultySession& s) { s.Click(s.main.cmdHelp); }},
  };
  return commands;
}

}  // namespace wheelwright::testing
