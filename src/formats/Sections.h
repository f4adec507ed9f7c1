// The parts of a file that the program owns: its banner, and the lines of a section, which are read
// as records and rewritten as a whole.
#pragma once

#include "core/Numbers.h"
#include "core/Table.h"
#include "core/Version.h"
#include "formats/Lines.h"
#include "formats/Tokenisers.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// The two lines on top of every file that the program writes, behind the comment mark of its
// format.
class Banner {
 public:
  explicit Banner(char mark);

  // "; File created with Wheelwright V1.0.0" and "; Homepage: https://wheelwright.example/", each
  // with its line end.
  std::string Text() const;

  // Whether the line holds a banner of any version at or behind a position, ignoring case.
  bool IsIn(std::string_view line, std::size_t from = 0) const;

 private:
  std::string beginning_;  // the first line without the version
  std::string homePage_;
  std::string foldedBeginning_;
  std::string foldedHomePage_;
};

// A section of lines of commas, each a record with a name.
template <class Record>
struct RecordSection {
  std::vector<std::string> names;  // in the order of the lines
  Table<Record> records;           // never without a record
  std::optional<int> damagedLine;  // counted from 1; a damaged line ends the reading
};

struct SectionForm {
  std::string_view opening;  // what the line in front of the section begins with
  int mandatoryFields;       // a line of fewer is damaged
  int nameField;
};

// Reads all sections between the opening and "end". `takeFields` is given a line, whose name has
// been taken already, and its record. Failure 6 past 32,767 lines or records; what was read until a
// failure is in the section.
template <class Record, class TakeFields>
void ReadSection(std::string_view text, const SectionForm& form, RecordSection<Record>& section,
                 const TakeFields& takeFields) {
  section.records.Reset();
  Counter16 records;
  Counter16 lineNumber;
  CommaLine fields;
  bool inSection = false;
  for (const std::string_view rawLine : Lines(text)) {
    lineNumber.Step();
    const std::string_view line = BeforeMark(rawLine, '#');
    if (line.starts_with("end")) inSection = false;
    if (inSection && !line.empty()) {
      fields.Take(line);
      if (fields.CountCommaFields() < form.mandatoryFields) {
        section.damagedLine = lineNumber.Value();
        return;
      }
      section.names.emplace_back(fields.GetCommaField(form.nameField));
      section.records.ExtendTo(records.Value());
      takeFields(fields, section.records.At(records.Value()));
      records.Step();
    }
    if (line.starts_with(form.opening)) inSection = true;
  }
}

// How a writer finds its section, which lasts until a line that begins with "end".
struct SectionRules {
  std::string_view opening;    // what the line in front of the section begins with
  std::size_t commentColumns;  // a "#" in these first columns makes a comment, which is copied
  bool hasBanner;              // on top of the text; then older banners among the comments go
  bool onlyOnce;               // whether only the first such section is one
};

// The text with a table in the place of the first section's first line that is no comment; the
// other lines of all its sections go, comments stay. `addTable` is called only if there is such a
// line.
std::string WithSectionRewritten(std::string_view text, const SectionRules& rules,
                                 const std::function<void(std::string& out)>& addTable);

}  // namespace wheelwright
