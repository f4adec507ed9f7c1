// What holds for every definition file, however odd.
#include "formats/DefinitionFile.h"
#include "support/DefinitionReference.h"
#include "support/Generators.h"
#include "support/HandlingReference.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

std::string WithoutLineEnds(std::string text) {
  std::erase_if(text, [](char byte) { return byte == '\r' || byte == '\n'; });
  return text;
}

// A field as a load leaves it.
std::string Field() {
  return *rc::gen::element<std::string>("", "1", "bus", "six456", "seven67", "car", "plane", "boat",
                                        "Car", "\xE4\x01", "-1", "end", "250");
}

std::string Blanks() {
  return *rc::gen::weightedElement<std::string>({{4, ""}, {1, " "}, {1, " \t"}});
}

// A line of fields; most have enough of them.
std::string RecordLine() {
  const int fields =
      *rc::gen::weightedElement<int>({{1, 9}, {2, 10}, {12, 11}, {12, 12}, {12, 13}, {3, 15}});
  std::string line = Blanks() + Field();
  for (int field = 1; field < fields; ++field) line += Blanks() + "," + Blanks() + Field();
  return line + std::string(
                    *rc::gen::weightedElement<std::size_t>({{4, 0}, {2, 1}, {1, 2}, {1, 14}}), ',');
}

std::string Comment() {
  return *rc::gen::element<std::string>(
      "# a", "#", "#end", "#cars", "# File created with Wheelwright V0",
      "x # HOMEPAGE: https://wheelwright.example/ x", "# Homepage: https://other.example/");
}

std::string Mark() {
  return *rc::gen::element<std::string>("cars", "end", "carsten", "ending", "cars # a", "end#",
                                        "Cars", "END", " end", "cars,1", "objs");
}

std::string AnyLine() {
  switch (*rc::gen::weightedElement<int>({{20, 0}, {4, 1}, {4, 2}, {3, 3}, {2, 4}, {1, 5}})) {
    case 0:
      return RecordLine();
    case 1:
      return Comment();
    case 2:
      return Mark();
    case 3:
      return RecordLine() + " " + Comment();
    case 4:
      return *rc::gen::weightedElement<std::string>({{6, ""}, {1, " "}, {1, "\t"}});
    default:
      return WithoutLineEnds(*AnyBytes());
  }
}

std::string TextOfLines(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line + *rc::gen::weightedElement<std::string>({{9, "\r\n"}, {1, "\r"}});
  }
  return text;
}

Texts SomeLines(std::string (*line)()) {
  Texts lines;
  for (int left = *rc::gen::inRange(0, 8); left > 0; --left) lines.push_back(line());
  return lines;
}

// In most files the section is open from the beginning.
std::string AnyFile() {
  const auto first = *rc::gen::weightedElement<std::string>({{4, "cars\r\n"}, {1, ""}});
  return first + TextOfLines(SomeLines(AnyLine));
}

std::vector<IdeEntry> AnyTable() {
  Texts lines = {"cars"};
  for (const std::string& line : SomeLines(RecordLine)) lines.push_back("0" + line);
  PlainDefinitions read = ReadDefinitionsPlainly(TextOfLines(lines));
  return read.records;
}

std::string Joined(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// A file whose one section has at least one record, no comment, and both its marks; what lies
// around it is any lines but such that open a section or hold a banner.
struct GoodFile {
  std::string before;
  Texts section;
  std::string behind;

  std::string Text() const { return before + "cars\r\n" + Joined(section) + "end\r\n" + behind; }
};

std::string ForeignLine() {
  std::string line = AnyLine();
  if (HoldsBanner(line) || line.substr(0, 4) == "cars") line = "text # kept";
  return line;
}

GoodFile AnyGoodFile() {
  GoodFile file{Joined(SomeLines(ForeignLine)), {}, Joined(SomeLines(ForeignLine))};
  do {
    // The line can't begin with the section's end, and has its eleven fields.
    file.section.push_back("1" + RecordLine() + ",,");
  } while (*rc::gen::inRange(0, 4) != 0);
  return file;
}

// A text that is read and then saved, each time over what the last save made of it.
struct Opened {
  explicit Opened(const std::string& text) : onDisk(text) { ReadDefinitions(text, file); }

  std::string Saved() {
    onDisk = WriteDefinitions(onDisk, file.records) + "\r\n";
    return onDisk;
  }

  std::string onDisk;
  DefinitionFile file;
};

RC_GTEST_PROP(DefinitionLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  const std::string text = Told(AnyFile());
  const DefinitionFile file = Opened(text).file;
  const PlainDefinitions plain = ReadDefinitionsPlainly(text);
  RC_ASSERT(file.damagedLine.value_or(0) == plain.damagedLine);
  RC_ASSERT(RecordsOf(file.records) == plain.records);
  RC_ASSERT(file.names == plain.keys);
}

RC_GTEST_PROP(DefinitionLaws, TheWriterWritesWhatAPlainOneWrites, ()) {
  const std::string text = Told(AnyFile());
  const std::vector<IdeEntry> ides = AnyTable();
  RC_ASSERT(WriteDefinitions(text, TableOf(ides)) == WriteDefinitionsPlainly(text, ides));
}

RC_GTEST_PROP(DefinitionLaws, ASaveChangesNothingAroundTheSection, ()) {
  const GoodFile file = AnyGoodFile();
  Opened opened(Told(file.Text()));
  opened.file.records.At(0).GameName = "edited";
  const std::string saved = opened.Saved();
  const std::string head = kBanner + file.before + "cars\r\n";
  const std::string tail = "end\r\n" + file.behind + "\r\n";
  RC_ASSERT(saved.substr(0, head.size()) == head);
  RC_ASSERT(saved.size() > head.size() + tail.size());
  RC_ASSERT(saved.substr(saved.size() - tail.size()) == tail);
  const auto between = saved.begin() + static_cast<std::ptrdiff_t>(head.size());
  const auto lines =
      std::count(between, saved.end() - static_cast<std::ptrdiff_t>(tail.size()), '\n');
  RC_ASSERT(lines == static_cast<std::ptrdiff_t>(file.section.size()));
}

// What a written line can't hold is lost: both extras of most types, the second one of a plane.
IdeEntry AsWritten(IdeEntry entry) {
  if (entry.Typ != "car") entry.Extra2.clear();
  if (entry.Typ != "car" && entry.Typ != "plane") entry.Extra1.clear();
  return entry;
}

RC_GTEST_PROP(DefinitionLaws, TheSavedFileGivesTheSameTableButForTheExtrasThatItLacks, ()) {
  Opened opened(Told(AnyGoodFile().Text()));
  std::vector<IdeEntry> expected = RecordsOf(opened.file.records);
  std::transform(expected.begin(), expected.end(), expected.begin(), AsWritten);
  RC_ASSERT(RecordsOf(Opened(opened.Saved()).file.records) == expected);
}

RC_GTEST_PROP(DefinitionLaws, ASavedFileThatIsLoadedAndSavedAgainOnlyGrowsByAnEmptyLine, ()) {
  Opened opened(Told(AnyGoodFile().Text()));
  const std::string once = opened.Saved();
  RC_ASSERT(opened.Saved() == once + "\r\n");
  RC_ASSERT(Opened(once).Saved() == once + "\r\n");
}

RC_GTEST_PROP(DefinitionLaws, AnUneditedSaveKeepsEveryCommentOfTheFile, ()) {
  const std::string text = Told(AnyFile());
  Opened opened(text);
  RC_PRE(!opened.file.damagedLine);
  const auto commentsOf = [](const std::string& file) {
    std::string comments;
    for (const std::string& line : PlainLines(file)) {
      if (line.find('#') != std::string::npos && !HoldsBanner(line)) comments += line + "\r\n";
    }
    return comments;
  };
  RC_ASSERT(commentsOf(opened.Saved()) == commentsOf(text));
}

}  // namespace
}  // namespace wheelwright::testing
