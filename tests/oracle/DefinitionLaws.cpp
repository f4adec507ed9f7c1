#include "formats/DefinitionFile.h"
#include "oracle/DefinitionReference.h"
#include "oracle/FormatLaws.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "oracle/SaveLaws.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

DefinitionFile Read(const std::string& text) {
  DefinitionFile file;
  ReadDefinitions(text, file);
  return file;
}

std::string Saved(const std::string& onDisk, const Table<IdeEntry>& ides) {
  return WriteDefinitions(onDisk, ides) + "\r\n";
}

// A definition whose line is a comment or ends the section.
bool LooksForeign(const IdeEntry& entry) {
  return TextOf(entry).find('#') != std::string::npos || entry.ID.View().starts_with("end");
}

// What a written line can't hold is lost: both extras of most types, the second one of a plane.
IdeEntry AsWritten(IdeEntry entry) {
  if (entry.Typ != "car") entry.Extra2 = "";
  if (entry.Typ != "car" && entry.Typ != "plane") entry.Extra1 = "";
  return entry;
}

// Lines with a comment are read and copied, and a section that isn't ended or has a second
// beginning is written otherwise than it was read.
bool IsSectionPlain(const std::string& text) {
  const auto mark = text.find("cars");
  return text.find('#') == std::string::npos && mark == text.rfind("cars") &&
         text.find("\nend", mark) != std::string::npos;
}

void RequireSameFieldsAgain(const std::string& saved, const Table<IdeEntry>& ides) {
  std::vector<IdeEntry> expected = RecordsOf(ides);
  std::transform(expected.begin(), expected.end(), expected.begin(), AsWritten);
  Require(RecordsOf(Read(saved).records) == expected, "a saved file loads with the same fields");
}

}  // namespace

void RequireDefinitionsRead(const std::string& text) {
  const DefinitionFile file = Read(text);
  const PlainDefinitions plain = ReadDefinitionsPlainly(text);
  Require(file.damagedLine.value_or(0) == plain.damagedLine, "a damaged line ends the reading");
  Require(RecordsOf(file.records) == plain.records, "the records are those of plain reading");
  Require(file.names == plain.keys, "the names are those of plain reading");
}

void RequireDefinitionsWritten(const std::string& onDisk, const std::vector<IdeEntry>& ides) {
  const Table<IdeEntry> table = TableOf(ides);
  const std::string once = WriteDefinitions(onDisk, table);
  RequireSameText(once, WriteDefinitionsPlainly(onDisk, ides), "a save writes what plain writing writes");
  RequireSectionComments(onDisk, once, std::string::npos, {"cars"});
  if (std::any_of(ides.begin(), ides.end(), LooksForeign)) return;
  const std::string twice = Saved(once + "\r\n", table);
  RequireOnlyGrowth(twice, Saved(twice, table), "\r\n");
}

void RequireDefinitionsSaved(const std::string& bytes) {
  const std::string text = NormalisedPlainly(bytes);
  const DefinitionFile file = Read(text);
  if (file.damagedLine || file.names.empty() || !IsSectionPlain(text)) return;
  const std::vector<IdeEntry> ides = RecordsOf(file.records);
  if (std::any_of(ides.begin(), ides.end(), LooksForeign)) return;
  RequireSameFieldsAgain(Saved(text, file.records), file.records);
}

void RequireTidyDefinitionsKept(const TidyDefinitionFile& tidy) {
  const DefinitionFile file = Read(tidy.Text());
  const std::string saved = Saved(tidy.Text(), file.records);
  const std::string head = kBanner + tidy.before + "cars\r\n";
  const std::string tail = "end\r\n" + tidy.behind + "\r\n";
  Require(saved.starts_with(head) && saved.ends_with(tail) && saved.size() > head.size() + tail.size(),
          "a save changes nothing around the section");
  const std::string section = saved.substr(head.size(), saved.size() - head.size() - tail.size());
  Require(PlainLines(section).size() == tidy.section.size(), "a save writes a line for each record");
  RequireSameFieldsAgain(saved, file.records);
  RequireSameText(Saved(saved, Read(saved).records), saved + "\r\n",
                  "a saved file that is loaded and saved again grows by an empty line");
}

}  // namespace wheelwright::testing
