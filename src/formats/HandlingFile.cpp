#include "formats/HandlingFile.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "formats/Lines.h"
#include "formats/NameIndex.h"
#include "formats/Sections.h"

#include <algorithm>

namespace wheelwright {
namespace {

bool IsSpecialMark(char c) { return c == '%' || c == '!' || c == '$'; }

bool IsVehicleLine(std::string_view line) {
  const auto isMark = [](char c) { return c == ';' || IsSpecialMark(c); };
  return line.size() > kHeadColumns && std::ranges::none_of(HeadOf(line), isMark);
}

// The text behind a word and one character, which is skipped whatever it is.
void TakeTextBehind(std::string_view line, std::string_view foldedWord, std::size_t from, std::string& text) {
  const std::size_t at = FindIgnoringCase(line, foldedWord, from);
  if (at == std::string_view::npos) return;
  const std::size_t begin = std::min(line.size(), at + foldedWord.size() + 1);
  text = TrimBlanks(line.substr(begin));
}

void TakeCommentFields(std::string_view line, HandlingFile& file) {
  const std::size_t comment = HeadOf(line).find(';');
  const std::size_t from = comment == std::string_view::npos ? 0 : comment;
  TakeTextBehind(line, "author:", from, file.author);
  TakeTextBehind(line, "created", from, file.created);
}

// First pass.
void ReadNames(std::string_view text, HandlingFile& file) {
  LineProblems problems;
  for (const std::string_view line : Lines(text)) {
    if (IsVehicleLine(line)) {
      file.names.emplace_back(ParseHandlingToken(SpaceLine(HeadOf(line)), 0, problems));
    } else {
      TakeCommentFields(line, file);
    }
  }
  SortAsInLists(file.names);
  file.hasOddNames = !problems.empty();
}

LineKind KindOf(std::string_view line) {
  LineKind kind = kOrdinaryVehicle;
  if (line.find('%') != std::string_view::npos) kind = kPercentLine;
  if (line.find('!') != std::string_view::npos) kind = kExclamationLine;
  if (line.find('$') != std::string_view::npos) kind = kDollarLine;
  return kind;
}

// Second pass: the lines that begin with a name make records; special lines mark them.
class RecordPass {
 public:
  explicit RecordPass(HandlingFile& file) : file_(file), names_(file.names) { file.cars.Reset(); }

  void Take(std::string_view line) {
    const std::string_view data = BeforeMark(line, ';');
    const LineKind kind = KindOf(data);
    const bool special = kind != kOrdinaryVehicle;
    for (const NameHit& hit : special ? names_.Anywhere(data) : names_.Beginning(data)) {
      if (hit.begins) MakeRecord(SpaceLine(data));
      if (special) MarkRecord(hit.position, kind);
    }
  }

 private:
  void MakeRecord(const SpaceLine& line) {
    file_.cars.ExtendTo(count_.Value());
    Car& car = file_.cars.At(count_.Value());
    car.LineKind = kOrdinaryVehicle;
    ReadVehicleLine(line, car, file_.problems);
    count_.Step();
  }

  // "%" marks the first record of that name, and one past the table's end if there is none; the
  // other two kinds mark the record whose index is the name's position.
  void MarkRecord(int position, LineKind kind) {
    const std::string& name = file_.names[static_cast<std::size_t>(position)];
    const int marked = kind == kPercentLine ? file_.cars.First(&Car::CarName, name) : position;
    file_.cars.At(marked).LineKind = kind;
  }

  HandlingFile& file_;
  NameIndex names_;
  Counter16 count_;
};

class HandlingWriter {
 public:
  HandlingWriter(const WrittenVehicles& vehicles, std::size_t expectedLength) : vehicles_(vehicles) {
    out_.reserve(expectedLength);
    out_ += banner_.Text();
  }

  void Take(std::string_view line) {
    const std::string_view head = HeadOf(line);
    const std::size_t comment = head.find(';');
    if (std::ranges::any_of(head, IsSpecialMark)) {
      AddLine(out_, line);
    } else if (comment == std::string_view::npos) {
      TakeVehicleLine();
    } else {
      TakeComment(line, comment);
    }
  }

  std::string Text() && {
    if (!HoldsIgnoringCase(out_, ";the end")) {
      AddLine(out_, ";");
      out_ += ";the end";
    }
    return std::move(out_);
  }

 private:
  // All vehicles take the place of the first such line, empty or not; the others go.
  void TakeVehicleLine() {
    if (vehiclesWritten_) return;
    vehiclesWritten_ = true;
    ForEachNamedVehicle(vehicles_, [&](int /*position*/, const Car& car) { AddVehicleLine(out_, car); });
  }

  void TakeComment(std::string_view line, std::size_t comment) {
    if (HoldsIgnoringCase(line, "author:", comment)) {
      AddLine(out_, "; Author: " + vehicles_.author);
    } else if (HoldsIgnoringCase(line, "; created", comment)) {
      AddLine(out_, "; Created " + vehicles_.created);
    } else if (!banner_.IsIn(line, comment)) {
      AddLine(out_, line);
    }
  }

  const WrittenVehicles& vehicles_;
  const Banner banner_{';'};
  std::string out_;
  bool vehiclesWritten_ = false;
};

}  // namespace

void ReadHandling(std::string_view text, HandlingFile& file) {
  ReadNames(text, file);
  RecordPass records(file);
  for (const std::string_view line : Lines(text)) records.Take(line);
}

std::string WriteHandling(std::string_view onDisk, const WrittenVehicles& vehicles) {
  HandlingWriter writer(vehicles, onDisk.size() + onDisk.size() / 8);
  for (const std::string_view line : Lines(onDisk)) writer.Take(line);
  return std::move(writer).Text();
}

}  // namespace wheelwright
