#include "exchange/Import.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "gamefiles/FileKinds.h"
#include "gamefiles/HandlingHead.h"
#include "gamefiles/HandlingLine.h"
#include "gamefiles/Lines.h"
#include "gamefiles/NameIndex.h"
#include "screen/Guarded.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

void PrepareDialog(Session& session) {
  FileDialog& dialog = session.main.CmD1;
  dialog.title = Message(session, 114);
  dialog.filter = FilterOfKind(session, kFileKinds[kHandlingFile]);
  dialog.flags = FileDialog::kHideReadOnly;
}

// First pass: names that the list doesn't have yet, cut at the head of their line.
void ListNewVehicles(Session& session, std::string_view text) {
  PickList& list = session.main.cmbAutos;
  std::unordered_set<std::string> known(list.Rows().begin(), list.Rows().end());
  std::vector<std::string> names;
  for (const std::string_view line : Lines(text)) {
    const std::string_view head = HeadOf(line);
    if (line.size() <= kHeadColumns || head.find(';') != std::string_view::npos) continue;
    const std::string name(TrimBlanks(head));
    if (known.insert(name).second) names.push_back(name);
  }
  list.AddRows(std::move(names));
}

// Second pass: every line that begins with a name makes a record. The first record cleans the line,
// so the names behind that one in the list are compared with its single-blank form.
class ImportPass {
 public:
  explicit ImportPass(Session& session)
      : session_(session),
        names_(session.main.cmbAutos.Rows()),
        next_(session.vars.Cars.UpperBound()) {
    Step();
  }

  void Take(std::string_view line) {
    const std::vector<NameHit>& hits = names_.Beginning(line);
    if (hits.empty()) return;
    const int firstHit = hits.front().position;
    const HandlingTokens tokens(line);
    AddRecord(tokens);
    const std::string cleaned = CleanedLine(line);
    for (const NameHit& hit : names_.Beginning(cleaned)) {
      if (hit.position > firstHit) AddRecord(tokens);
    }
  }

 private:
  void AddRecord(const HandlingTokens& tokens) {
    Table<Car>& cars = session_.vars.Cars;
    cars.ExtendTo(next_);
    tokens.Fill(session_, cars.At(next_));
    Step();
  }

  void Step() { next_ = Checked16(next_ + 1); }

  Session& session_;
  NameIndex names_;
  std::int16_t next_;
};

}  // namespace

void ImportVehicles(Session& session) {
  const auto normalPointer = [&] { session.desktop.SetPointer(Pointer::Normal); };
  const auto import = [&] {
    PrepareDialog(session);
    session.desktop.ShowOpen(session.main.CmD1);
    session.desktop.SetPointer(Pointer::Hourglass);
    if (!session.files.Exists(session.main.CmD1.file)) {
      normalPointer();
      session.desktop.ShowError(Message(session, 12));
      return;
    }
    const std::string text = session.files.Read(session.main.CmD1.file);
    ListNewVehicles(session, text);
    ImportPass records(session);
    for (const std::string_view line : Lines(text)) records.Take(line);
    session.main.cmbAutos.Choose(0);
    session.vars.IsSaved = false;
    normalPointer();
    session.desktop.ShowInformation(Message(session, 115));
  };
  Guarded(session, import, normalPointer);
}

}  // namespace wheelwright
