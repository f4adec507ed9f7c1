// What holds for every handling file, however odd.
#include "core/Failure.h"
#include "formats/HandlingFile.h"
#include "support/Generators.h"
#include "support/HandlingReference.h"
#include "support/TableRecords.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

using Lines = std::vector<std::string>;

// Names of which some are the beginning of others, equal but for case, or too long for the list.
rc::Gen<std::string> OddName() {
  return rc::gen::element<std::string>("BUS", "BUSX", "bus", "B", "TAXI", "M\xC4RZ", "m\xE4rz",
                                       "FOURTEENLETTER", "SIXTEENCHARACTER", "4711", "-1.5");
}

rc::Gen<std::string> Token() {
  return rc::gen::element<std::string>("1500.0", "0.70", "-.5", "R", "P", "4", "0000003", "heavy",
                                       "1e3", "\xFF\x01", "1.9.1");
}

std::string RandomVehicle(const std::string& name) {
  const int others = *rc::gen::weightedElement<int>({{6, 32}, {1, 2}, {1, 30}, {1, 33}});
  std::string line = name;
  for (int i = 0; i < others; ++i) {
    line += *rc::gen::element<std::string>(" ", "\t", "   ", " \t ");
    line += *Token();
  }
  return line + *rc::gen::weightedElement<std::string>({{6, ""}, {1, " ; tuned"}, {1, " \t"}});
}

std::string RandomComment() {
  return *rc::gen::element<std::string>(
             "; a", ";", "   ;b ", "; Author: Bob", "; Created 1999", "; it was created=2001",
             ";the end", "; % Author: x", "; File created with Wheelwright V0.9",
             "; HOMEPAGE: https://wheelwright.example/", "              ; far to the right") +
         *rc::gen::element<std::string>("", " ", "\xE4 $", " ;the end");
}

std::string RandomMarkedLine() {
  return *rc::gen::element<std::string>("%", "!", "$", "  %", "%!", "x % ") + " " + *OddName() +
         *rc::gen::element<std::string>("", " 0.5", " ; TAXI");
}

bool IsLineEnd(char byte) { return byte == '\r' || byte == '\n'; }

std::string WithoutLineEnds(std::string text) {
  text.erase(std::remove_if(text.begin(), text.end(), IsLineEnd), text.end());
  return text;
}

std::string RandomLine() {
  switch (*rc::gen::weightedElement<int>({{6, 0}, {3, 1}, {3, 2}, {1, 3}, {1, 4}, {1, 5}})) {
    case 0:
      return RandomVehicle(*OddName());
    case 1:
      return RandomComment();
    case 2:
      return RandomMarkedLine();
    case 3:
      return " " + RandomVehicle(*OddName());
    case 4:
      return "";
    default:
      return WithoutLineEnds(*AnyBytes());
  }
}

std::string TextOfLines(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line + *rc::gen::weightedElement<std::string>({{9, "\r\n"}, {1, "\r"}});
  }
  return text;
}

bool HoldsNoMark(const std::string& line) { return line.find_first_of("%!$") == std::string::npos; }

// Any file without bare line feeds; in half of them the marked lines stand behind the others.
std::string RandomFile() {
  const auto count = *rc::gen::inRange<std::size_t>(0, 20);
  Lines lines;
  for (std::size_t i = 0; i < count; ++i) lines.push_back(RandomLine());
  if (*rc::gen::arbitrary<bool>()) {
    std::stable_partition(lines.begin(), lines.end(), HoldsNoMark);
  }
  return TextOfLines(lines);
}

// A line that reader and writer leave alone: a comment or special line in its first 14 columns.
bool IsForeign(const std::string& line) {
  return line.substr(0, 14).find_first_of(";%!$") != std::string::npos;
}

Lines ForeignLines(const std::string& text) {
  Lines lines = PlainLines(text);
  lines.erase(std::remove_if(lines.begin(), lines.end(), std::not_fn(IsForeign)), lines.end());
  return lines;
}

// A file that every rule of the format is kept in: its vehicles' names are different and none is
// the beginning of another, special lines stand behind them, and the flags are long enough for a
// display to leave them alone.
struct GoodFile {
  std::vector<Tokens> vehicles;
  std::string text;
};

GoodFile RandomGoodFile() {
  const auto kinds = *rc::gen::unique<std::vector<char>>(rc::gen::inRange('A', 'Z'));
  GoodFile file;
  Lines lines;
  for (const char kind : kinds) {
    Tokens tokens = {std::string(3, kind)};
    while (tokens.size() < 33) tokens.push_back(*Token());
    tokens[30] = *rc::gen::element<std::string>("0000003", "FFFFFFFF", "nonumber");
    file.vehicles.push_back(tokens);
    lines.push_back(Joined(tokens, *rc::gen::element<std::string>(" ", "\t", " \t ")));
    if (*rc::gen::arbitrary<bool>()) lines.push_back("; " + WithoutLineEnds(*AnyBytes()));
  }
  for (const char kind : kinds) {
    if (*rc::gen::inRange(0, 3) == 0) lines.push_back("% " + std::string(2, kind) + kind);
  }
  file.text = TextOfLines(lines);
  return file;
}

// A text that is read and then saved, each time over what the last save made of it.
struct Opened {
  explicit Opened(const std::string& text)
      : onDisk(text), failure(NumberThrownBy([&] { ReadHandling(text, file); })) {}

  std::string Saved() {
    onDisk = WriteHandling(onDisk, {file.names, file.cars, file.author, file.created}) + "\r\n";
    return onDisk;
  }

  std::string onDisk;
  HandlingFile file;
  int failure;
};

RC_GTEST_PROP(HandlingLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  const std::string text = Told(RandomFile());
  const Opened opened(text);
  const PlainHandling plain = ReadPlainly(text);
  RC_TAG(opened.failure);
  RC_ASSERT(opened.failure == plain.failure);
  RC_ASSERT(opened.file.names == plain.names);
  RC_ASSERT(opened.file.author == plain.author);
  RC_ASSERT(opened.file.created == plain.date);
  RC_ASSERT(opened.file.problems == plain.problems);
  RC_ASSERT(opened.file.hasOddNames == plain.hasOddNames);
  RC_ASSERT(RecordsOf(opened.file.cars) == plain.records);
}

RC_GTEST_PROP(HandlingLaws, TheWriterWritesWhatAPlainOneWrites, ()) {
  const std::string text = Told(RandomFile());
  const auto names = *rc::gen::container<Lines>(OddName());
  std::vector<Car> cars(1);
  for (const std::string& name : *rc::gen::container<Lines>(OddName())) {
    cars.push_back(CarOf(TokensWith(name, *rc::gen::inRange<std::size_t>(1, 33), *Token())));
  }
  const std::string author = *Token();
  const std::string date = *Token();
  RC_ASSERT(WriteHandling(text, {names, TableOf(cars), author, date}) ==
            WritePlainly(text, names, cars, author, date));
}

RC_GTEST_PROP(HandlingLaws, ForeignLinesComeThroughByteForByteInOrder, ()) {
  const std::string text = Told(RandomFile());
  Opened opened(text);
  RC_PRE(opened.failure == 0);
  Lines expected;
  for (const std::string& line : ForeignLines(text)) {
    const std::string rewritten =
        WritePlainly(line, {}, {}, opened.file.author, opened.file.created);
    const Lines lines = PlainLines(rewritten);
    const bool dropped = lines.size() < 3 || (lines.size() == 4 && lines[2] == ";");
    if (!dropped) expected.push_back(lines[2]);
  }
  Lines found = ForeignLines(opened.Saved());
  found.erase(found.begin(), found.begin() + 2);
  if (found.size() > expected.size()) {
    expected.insert(expected.end(), {";", ";the end"});
  }
  RC_ASSERT(found == expected);
}

RC_GTEST_PROP(HandlingLaws, ASecondSaveAddsAnEmptyLineAtMost, ()) {
  Opened opened(Told(RandomFile()));
  RC_PRE(opened.failure == 0 && !opened.file.names.empty());
  const std::string once = opened.Saved();
  const std::string twice = opened.Saved();
  RC_ASSERT(twice == once || twice == once + "\r\n");
  RC_ASSERT(opened.Saved() == twice);
}

RC_GTEST_PROP(HandlingLaws, TokensComeThroughASaveUnchanged, ()) {
  const GoodFile file = RandomGoodFile();
  RC_PRE(!file.vehicles.empty());
  Opened opened(Told(file.text));
  RC_ASSERT(opened.failure == 0);
  RC_ASSERT(TokensOf(opened.file.cars) == file.vehicles);
  Lines expected;
  for (const Tokens& tokens : file.vehicles) {
    expected.push_back(PlainLines(WritePlainly("x", {tokens[0]}, {CarOf(tokens)}, "", ""))[2]);
  }
  std::sort(expected.begin(), expected.end());
  Lines found = PlainLines(opened.Saved());
  found.erase(std::remove_if(found.begin(), found.end(), IsForeign), found.end());
  found.erase(std::remove(found.begin(), found.end(), ""), found.end());
  RC_ASSERT(found == expected);
}

RC_GTEST_PROP(HandlingLaws, TheSavedFileGivesTheSameRecords, ()) {
  const GoodFile file = RandomGoodFile();
  RC_PRE(!file.vehicles.empty());
  Opened opened(Told(file.text));
  std::vector<Car> before = RecordsOf(opened.file.cars);
  std::sort(before.begin(), before.end(),
            [](const Car& left, const Car& right) { return left.CarName < right.CarName; });
  RC_ASSERT(RecordsOf(Opened(opened.Saved()).file.cars) == before);
}

}  // namespace
}  // namespace wheelwright::testing
