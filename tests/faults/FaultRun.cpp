#include "faults/FaultRun.h"

#include "support/TableTexts.h"

#include <algorithm>
#include <memory>
#include <set>

namespace wheelwright::testing {
namespace {

using Disk = std::map<std::string, std::string>;

std::string Joined(const std::vector<std::string>& texts, const char* separator) {
  std::string joined;
  for (const std::string& text : texts) {
    if (!joined.empty()) joined += separator;
    joined += text;
  }
  return joined.empty() ? "-" : joined;
}

// Without the folder, whether it names a file or a folder.
std::string NameOfFile(std::string path) {
  if (path.ends_with('/')) path.pop_back();
  return path.substr(path.rfind('/') + 1);
}

std::string ShortTextOf(const Car& car) { return car.CarName + " " + car.Mass; }
std::string ShortTextOf(const IdeEntry& entry) { return entry.HandlingID + " " + entry.ModelName; }
std::string ShortTextOf(const ColorEntry& entry) { return TextOf(entry); }
std::string ShortTextOf(const CarColorEntry& entry) { return TextOf(entry); }

template <class Record>
std::string RecordsOf(const Table<Record>& table) {
  std::vector<std::string> texts;
  for (int index = 0; index < table.Count(); ++index) {
    texts.push_back(ShortTextOf(table.At(index)));
  }
  return Joined(texts, ", ");
}

template <class Record>
void AddTable(std::vector<std::string>& out, const Table<Record>& table, const Table<Record>& snapshot) {
  if (table.IsAllocated() || snapshot.IsAllocated()) {
    out.push_back(RecordsOf(table) + " / " + RecordsOf(snapshot));
  }
}

std::string TablesOf(const Vars& vars) {
  std::vector<std::string> tables;
  AddTable(tables, vars.Cars, vars.Kopie_Cars);
  AddTable(tables, vars.Ides, vars.Kopie_Ides);
  AddTable(tables, vars.Colors, vars.Kopie_Colors);
  AddTable(tables, vars.CarColors, vars.Kopie_CarColors);
  return Joined(tables, "; ");
}

std::string EnabledOf(const FrmMain& main) {
  std::vector<std::string> enabled;
  for (const Control* command : std::initializer_list<const Control*>{
           &main.cmdSave, &main.cmdSaveAs, &main.cmdBackup, &main.cmdUndo, &main.FrameAutos}) {
    if (command->IsEnabled()) enabled.push_back(command->Name());
  }
  if (enabled.size() == 5) enabled = {"commands"};
  for (const Control* tabs :
       std::initializer_list<const Control*>{&main.SSTab1, &main.SSTab2, &main.SSTab3}) {
    if (tabs->IsEnabled()) enabled.push_back(tabs->Name());
  }
  return Joined(enabled, " ");
}

// The picture of the tab group that is shown.
std::string PictureOf(const FrmMain& main) {
  const Picture& picture = main.SSTab2.IsVisible() ? main.picCar2 : main.picCar;
  if (picture.File().empty()) return "-";
  return NameOfFile(picture.File()) + " " + std::to_string(picture.Width());
}

std::string LanguageOf(const Vars& vars) {
  const auto entry = [&](std::size_t at) { return vars.Lang[at].empty() ? "-" : vars.Lang[at]; };
  return entry(0) + " " + entry(1);
}

struct Played {
  std::unique_ptr<FaultySession> session = std::make_unique<FaultySession>();
  Disk before;
  std::map<std::pair<std::string, std::string>, std::string> settingsBefore;
};

Played Play(const FaultCommand& command, int call, Fault fault, const std::string& changed = "") {
  Played played;
  FaultySession& s = *played.session;
  command.arrange(s);
  played.before = s.files.disk.contents;
  played.settingsBefore = s.settings.values;
  if (!changed.empty()) s.files.disk.contents[changed] = s.files.changedTexts.at(changed);
  s.desktop.shown.clear();
  s.files.FailAt(call, fault);
  command.run(s);
  return played;
}

// Half of the new text over the old one, as FaultyFiles leaves it.
bool IsHalfWay(const std::string& text, const std::string& from, const std::string& to) {
  const std::size_t half = to.size() / 2;
  return text == to.substr(0, half) + from.substr(std::min(half, from.size()));
}

// Names a file's text after the write that a command makes of it: "new" is the last one. Empty if
// it is none.
std::string NameAmongWrites(const std::string& path, const std::string& text, const Played& played) {
  const std::vector<FileCall>& calls = played.session->files.calls;
  std::string old = played.before.contains(path) ? played.before.at(path) : "";
  std::string name;
  std::string last;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    if (calls[i].operation != Operation::Write || calls[i].path != path) continue;
    last = "as of call " + std::to_string(i + 1);
    if (IsHalfWay(text, old, calls[i].text)) name = "cut";
    if (text == calls[i].text) name = last;
    old = calls[i].text;
  }
  return !name.empty() && name == last ? "new" : name;
}

// A text that no write has, as it is but for its line ends.
std::string Literal(const std::string& text) {
  std::string literal = "\"";
  for (const char byte : text) {
    if (byte == '\r') continue;
    literal += byte == '\n' ? std::string("\\n") : byte == '\t' ? "\\t" : std::string(1, byte);
  }
  return literal + "\"";
}

std::string NameOfContent(const FaultCommand& command, const std::string& path, const FaultySession& s) {
  const Disk& disk = s.files.disk.contents;
  if (s.files.directories.contains(path)) return "a directory";
  if (!disk.contains(path)) return "gone";
  const std::string& text = disk.at(path);
  if (text.empty()) return "empty";
  if (s.files.changedTexts.contains(path)) {
    if (text == s.files.changedTexts.at(path)) return "as changed";
  }
  const Played faultless = Play(command, 0, Fault::None);
  std::string name = NameAmongWrites(path, text, faultless);
  for (const auto& [changed, itsText] : s.files.changedTexts) {
    if (!name.empty() || !faultless.before.contains(changed)) continue;
    name = NameAmongWrites(path, text, Play(command, 0, Fault::None, changed));
    if (!name.empty()) name += " over the changed file";
  }
  return name.empty() ? Literal(text) : name;
}

std::set<std::string> WrittenBy(const FaultCommand& command) {
  std::set<std::string> paths;
  for (const FileCall& call : CallsOf(command)) {
    if (call.operation == Operation::Write) paths.insert(call.path);
  }
  return paths;
}

std::string DiskOf(const FaultCommand& command, const Played& played) {
  Disk all = played.before;
  const Disk& after = played.session->files.disk.contents;
  all.insert(after.begin(), after.end());
  const std::set<std::string> written = WrittenBy(command);
  std::vector<std::string> states;
  for (const auto& [path, text] : all) {
    const auto then = played.before.find(path);
    const auto now = after.find(path);
    const bool same = then != played.before.end() && now != after.end() && then->second == now->second;
    if (same && !written.contains(path)) continue;
    states.push_back(NameOfFile(path) + " " + (same ? "old" : NameOfContent(command, path, *played.session)));
  }
  return Joined(states, "; ");
}

std::string SettingsOf(const Played& played) {
  std::vector<std::string> differences;
  for (const auto& [place, value] : played.session->settings.values) {
    const auto before = played.settingsBefore.find(place);
    if (before != played.settingsBefore.end() && before->second == value) continue;
    differences.push_back(place.second + " " + NameOfFile(value));
  }
  return Joined(differences, "; ");
}

bool IsTouchedBefore(const std::vector<FileCall>& calls, std::size_t index) {
  const auto end = calls.begin() + static_cast<std::ptrdiff_t>(index);
  return std::any_of(calls.begin(), end,
                     [&](const FileCall& call) { return call.path == calls[index].path; });
}

}  // namespace

const char* NameOf(Fault fault) {
  switch (fault) {
    case Fault::None:
      return "none";
    case Fault::Missing:
      return "missing";
    case Fault::Vanished:
      return "vanished";
    case Fault::NoFolder:
      return "no folder";
    case Fault::Directory:
      return "directory";
    case Fault::Changed:
      return "changed";
    case Fault::NoAccess:
      return "no access";
    case Fault::Full:
      return "disk full";
    case Fault::CutShort:
      return "cut short";
    case Fault::IoError:
      return "device";
    case Fault::CloseError:
      return "close";
  }
  return "";
}

std::string LabelOf(const FileCall& call) {
  static const std::map<Operation, const char*> names = {
      {Operation::Exists, "look for"},    {Operation::Clear, "clear marks of"}, {Operation::Read, "read"},
      {Operation::Room, "find room for"}, {Operation::Write, "write"},          {Operation::List, "list"},
      {Operation::Picture, "picture"}};
  return std::string(names.at(call.operation)) + " " + NameOfFile(call.path);
}

std::vector<FileCall> CallsOf(const FaultCommand& command) {
  return Play(command, 0, Fault::None).session->files.calls;
}

std::vector<Fault> FaultsOf(const std::vector<FileCall>& calls, std::size_t index) {
  const Fault gone = IsTouchedBefore(calls, index) ? Fault::Vanished : Fault::Missing;
  switch (calls[index].operation) {
    case Operation::Exists:
    case Operation::Clear:
      return {gone, Fault::Directory, Fault::NoAccess, Fault::Changed};
    case Operation::Read:
    case Operation::Picture:
      return {gone, Fault::Directory, Fault::NoAccess, Fault::IoError, Fault::Changed};
    case Operation::Room:
      return {Fault::Full};
    case Operation::Write:
      return {gone,          Fault::NoFolder, Fault::Directory, Fault::NoAccess,
              Fault::Full,   Fault::CutShort, Fault::IoError,   Fault::CloseError,
              Fault::Changed};
    case Operation::List:
      return {gone, Fault::NoAccess, Fault::IoError};
  }
  return {};
}

std::vector<std::string> OutcomeOf(const FaultCommand& command, int call, Fault fault) {
  const Played played = Play(command, call, fault);
  const FaultySession& s = *played.session;
  std::vector<std::string> shown = s.desktop.shown;
  for (std::string& text : shown) std::replace(text.begin(), text.end(), '\r', ' ');
  for (std::string& text : shown) std::erase(text, '\n');
  return {Joined(shown, ", "),
          TablesOf(s.vars),
          s.vars.IsSaved ? "saved" : "pending",
          s.vars.CurrentFile.empty() ? "-" : NameOfFile(s.vars.CurrentFile),
          EnabledOf(s.main),
          Joined(s.main.cmbAutos.Rows(), " "),
          PictureOf(s.main),
          LanguageOf(s.vars),
          SettingsOf(played),
          DiskOf(command, played)};
}

}  // namespace wheelwright::testing
