#include "gamefiles/HandlingReader.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "gamefiles/HandlingHead.h"
#include "gamefiles/HandlingLine.h"
#include "gamefiles/Lines.h"
#include "gamefiles/LoadProblems.h"
#include "gamefiles/NameIndex.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

bool IsVehicleLine(std::string_view line) {
  return line.size() > kHeadColumns && HeadOf(line).find_first_of(";%$!") == std::string_view::npos;
}

// The text behind a word and one character, which is skipped whatever it is.
void TakeTextBehind(std::string_view line, std::string_view foldedWord, std::size_t from,
                    TextBox& box) {
  const std::size_t at = FindIgnoringCase(line, foldedWord, from);
  if (at == std::string_view::npos) return;
  const std::size_t begin = std::min(line.size(), at + foldedWord.size() + 1);
  box.SetText(std::string(TrimBlanks(line.substr(begin))));
}

void TakeCommentFields(Session& session, std::string_view line) {
  const std::size_t comment = HeadOf(line).find(';');
  const std::size_t from = comment == std::string_view::npos ? 0 : comment;
  TakeTextBehind(line, "author:", from, session.main.txtAuthor);
  TakeTextBehind(line, "created", from, session.main.txtDate);
}

// First pass: the names, cut at the head of their line, go into the list that sorts itself.
void ListVehicles(Session& session, std::string_view text) {
  std::vector<std::string> names;
  for (const std::string_view line : Lines(text)) {
    if (!IsVehicleLine(line)) {
      TakeCommentFields(session, line);
      continue;
    }
    std::string head(TrimBlanks(HeadOf(line)));
    names.push_back(ParseHandlingToken(session, head, 0));
  }
  session.main.cmbAutos.AddRows(std::move(names));
}

LineKind KindOf(std::string_view line) {
  LineKind kind = kOrdinaryVehicle;
  if (line.find('%') != std::string_view::npos) kind = kPercentLine;
  if (line.find('!') != std::string_view::npos) kind = kExclamationLine;
  if (line.find('$') != std::string_view::npos) kind = kDollarLine;
  return kind;
}

// Second pass: the lines that begin with a name of the list make records; special lines mark them.
class RecordPass {
 public:
  explicit RecordPass(Session& session)
      : session_(session), cars_(session.vars.Kopie_Cars), names_(session.main.cmbAutos.Rows()) {
    cars_.Reset();
  }

  void Take(std::string_view line) {
    const std::string_view data = BeforeMark(line, ';');
    const LineKind kind = KindOf(data);
    const bool special = kind != kOrdinaryVehicle;
    for (const NameHit& hit : special ? names_.Anywhere(data) : names_.Beginning(data)) {
      if (hit.begins) MakeRecord(HandlingTokens(data));
      if (special) MarkRecord(hit.position, kind);
    }
  }

 private:
  void MakeRecord(const HandlingTokens& tokens) {
    cars_.ExtendTo(count_.Value());
    Car& car = cars_.At(count_.Value());
    car.LineKind = kOrdinaryVehicle;
    tokens.Fill(session_, car);
    count_.Step();
  }

  // "%" marks the first record of that name, and one past the table's end if there is none; the
  // other two kinds mark the record whose index is the name's position in the list.
  void MarkRecord(int position, LineKind kind) {
    const std::string& name = session_.main.cmbAutos.Rows()[static_cast<std::size_t>(position)];
    const int marked = kind == kPercentLine ? cars_.First(&Car::CarName, name) : position;
    cars_.At(marked).LineKind = kind;
  }

  Session& session_;
  Table<Car>& cars_;
  NameIndex names_;
  Counter16 count_;
};

}  // namespace

void LoadHandlingFile(Session& session) {
  const std::string text = session.files.Read(session.vars.CurrentFile);
  ListVehicles(session, text);
  ClearLoadProblems(session);
  RecordPass records(session);
  for (const std::string_view line : Lines(text)) records.Take(line);
  session.vars.Cars = session.vars.Kopie_Cars;
}

}  // namespace wheelwright
