#include "fuzz/OpenLaws.h"

#include "fuzz/Law.h"
#include "support/HandlingReference.h"

#include <algorithm>

namespace wheelwright::fuzz {
namespace {

bool AreCommandsEnabled(const FrmMain& main, bool enabled) {
  return main.cmdSave.IsEnabled() == enabled && main.cmdSaveAs.IsEnabled() == enabled &&
         main.cmdBackup.IsEnabled() == enabled && main.FrameAutos.IsEnabled() == enabled &&
         main.cmdUndo.IsEnabled() == enabled;
}

}  // namespace

std::string NormalisedPlainly(const std::string& text) {
  std::string joined;
  for (const std::string& line : testing::PlainLines(text)) joined += line;
  if (joined.find('\n') == std::string::npos) return text;
  std::string rewritten;
  for (const char byte : joined) rewritten += byte == '\n' ? "\r\n" : std::string(1, byte);
  return rewritten + "\r\n";
}

std::string BoxOf(int failure) {
  return "error: " + Failure(static_cast<FailureNumber>(failure)).Message();
}

std::string BoxOfDamagedLine(int line) {
  return "error: " + testing::LangText(150) + std::to_string(line);
}

void RequireLoaded(testing::TestSession& test, const std::string& path, TabGroup FrmMain::*tabs) {
  RequireSameText(test.LastShown(), "normal", "the file opens");
  Require(test.vars.CurrentFile == path, "the opened file is the current one");
  Require(test.vars.IsSaved, "nothing is pending after a load");
  Require(AreCommandsEnabled(test.main, true), "a load enables the commands");
  Require((test.main.*tabs).IsEnabled() && (test.main.*tabs).IsVisible(), "the tabs are shown");
  Require(test.main.cmbAutos.Row() == 0, "the first vehicle is chosen");
}

void RequireReset(testing::TestSession& test, const std::string& box) {
  const FrmMain& main = test.main;
  RequireSameText(test.LastShown(), box, "a failed load ends with its box");
  Require(test.desktop.shown.size() >= 2 && test.desktop.shown.rbegin()[1] == "normal",
          "the pointer is normal before the box");
  Require(test.vars.CurrentFile.empty(), "a failed load leaves no current file");
  Require(test.vars.IsSaved, "nothing is pending after a failed load");
  Require(AreCommandsEnabled(main, false), "a failed load disables the commands");
  Require(!main.SSTab1.IsEnabled() && !main.SSTab2.IsEnabled() && !main.SSTab3.IsEnabled(),
          "a failed load disables the tabs");
  Require(main.cmbAutos.Count() == 0, "a failed load empties the list");
}

std::string Saved(testing::TestSession& test) {
  const std::string path = test.vars.CurrentFile;
  test.main.cmdSave.ClickByHand();
  RequireSameText(test.LastShown(), "information: " + testing::LangText(116), "the file is saved");
  Require(test.vars.IsSaved, "nothing is pending after a save");
  return test.Disk(path);
}

}  // namespace wheelwright::fuzz
