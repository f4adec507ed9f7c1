#include "oracle/DefinitionReference.h"

#include "oracle/PlainTexts.h"
#include "support/TableTexts.h"

namespace wheelwright::testing {
namespace {

bool BeginsWith(const std::string& line, const std::string& word) {
  return line.substr(0, word.size()) == word;
}

IdeEntry RecordOf(std::string line) {
  IdeEntry entry;
  FieldText* const mandatory[] = {&entry.ID,         &entry.ModelName, &entry.TXDName,  &entry.Typ,
                                  &entry.HandlingID, &entry.GameName,  &entry.Anim,     &entry.Klasse,
                                  &entry.Frequenz,   &entry.Level,     &entry.CompRules};
  std::size_t position = 0;
  for (FieldText* field : mandatory) *field = TakeCommaField(line, position++);
  if (SplitAtCommas(line).size() >= 12) entry.Extra1 = TakeCommaField(line, 11);
  if (SplitAtCommas(line).size() >= 13) entry.Extra2 = TakeCommaField(line, 12);
  return entry;
}

// A field, its comma and tab, and one more tab if it is shorter than seven characters.
std::string Padded(const std::string& field) { return field + (field.size() < 7 ? ",\t\t" : ",\t"); }

std::string LineOf(const IdeEntry& ide) {
  std::string line = ide.ID + ",\t" + Padded(ide.ModelName) + Padded(ide.TXDName) + ide.Typ + ",\t" +
                     Padded(ide.HandlingID) + Padded(ide.GameName) + Padded(ide.Anim) + Padded(ide.Klasse) +
                     ide.Frequenz + ", \t" + ide.Level + ", \t" + ide.CompRules + ", \t";
  if (ide.Typ == "car") line += ide.Extra1 + ", \t" + ide.Extra2;
  if (ide.Typ == "plane") line += ide.Extra1;
  return line;
}

}  // namespace

PlainDefinitions ReadDefinitionsPlainly(const std::string& text) {
  PlainDefinitions read;
  bool inSection = false;
  int number = 0;
  for (const std::string& rawLine : PlainLines(text)) {
    ++number;
    const std::string line = rawLine.substr(0, rawLine.find('#'));
    if (inSection && BeginsWith(line, "end")) inSection = false;
    if (inSection && !line.empty()) {
      std::string cleaned = WithoutBlanksAndTabs(line);
      if (SplitAtCommas(cleaned).size() < 11) {
        read.damagedLine = number;
        break;
      }
      read.keys.push_back(TakeCommaField(cleaned, 4));
      read.records.push_back(RecordOf(cleaned));
    }
    if (BeginsWith(line, "cars")) inSection = true;
  }
  if (read.records.empty()) read.records.resize(1);
  return read;
}

std::string WriteDefinitionsPlainly(const std::string& onDisk, const std::vector<IdeEntry>& ides) {
  std::string buffer = kBanner;
  bool inSection = false;
  bool tableWritten = false;
  for (const std::string& line : PlainLines(onDisk)) {
    if (line.find('#') != std::string::npos) {
      if (!HoldsBanner(line)) buffer += line + "\r\n";
      continue;
    }
    if (inSection && BeginsWith(line, "end")) inSection = false;
    if (!inSection) buffer += line + "\r\n";
    if (inSection && !tableWritten) {
      for (const IdeEntry& ide : ides) buffer += LineOf(ide) + "\r\n";
      tableWritten = true;
    }
    if (!inSection && BeginsWith(line, "cars")) inSection = true;
  }
  return buffer;
}

}  // namespace wheelwright::testing
