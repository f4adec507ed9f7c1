#include "formats/DefinitionFile.h"

#include "core/Numbers.h"
#include "formats/Lines.h"
#include "formats/Sections.h"
#include "formats/Tokenisers.h"

namespace wheelwright {
namespace {

constexpr std::size_t kMandatoryFields = 11;
constexpr std::size_t kShortText = 7;

// The first count sees a comma at the end of the line as a field; taking the fields strips such
// commas, so that the later counts may see fewer.
void TakeFields(CommaLine& line, IdeEntry& entry) {
  for (std::size_t position = 0; position < kMandatoryFields; ++position) {
    entry.*kDefinitionValues[position].value = line.GetCommaField(static_cast<int>(position));
  }
  if (line.CountCommaFields() >= 12) entry.Extra1 = line.GetCommaField(11);
  if (line.CountCommaFields() >= 13) entry.Extra2 = line.GetCommaField(12);
}

void AddDefinitionLine(std::string& out, const IdeEntry& entry) {
  for (std::size_t position = 0; position < kMandatoryFields; ++position) {
    const DefinitionValue& field = kDefinitionValues[position];
    const std::string& value = entry.*field.value;
    out.append(value).append(field.separator);
    if (field.tabBehindShortText && value.size() < kShortText) out += '\t';
  }
  if (entry.Typ == "car") out.append(entry.Extra1).append(", \t").append(entry.Extra2);
  if (entry.Typ == "plane") out += entry.Extra1;
  out += kLineEnd;
}

}  // namespace

const std::array<DefinitionValue, 13> kDefinitionValues = {{
    {"ID", &IdeEntry::ID, ",\t"},
    {"ModelName", &IdeEntry::ModelName, ",\t", true},
    {"TXDName", &IdeEntry::TXDName, ",\t", true},
    {"Typ", &IdeEntry::Typ, ",\t"},
    {"HandlingID", &IdeEntry::HandlingID, ",\t", true},
    {"GameName", &IdeEntry::GameName, ",\t", true},
    {"Anim", &IdeEntry::Anim, ",\t", true},
    {"Klasse", &IdeEntry::Klasse, ",\t", true},
    {"Frequenz", &IdeEntry::Frequenz, ", \t"},
    {"Level", &IdeEntry::Level, ", \t"},
    {"CompRules", &IdeEntry::CompRules, ", \t"},
    {"Extra1", &IdeEntry::Extra1, ", \t"},
    {"Extra2", &IdeEntry::Extra2, ""},
}};

void ReadDefinitions(std::string_view text, DefinitionFile& file) {
  file.ides.Reset();
  Counter16 records;
  Counter16 lineNumber;
  bool inSection = false;
  for (const std::string_view rawLine : Lines(text)) {
    lineNumber.Step();
    const std::string_view line = BeforeMark(rawLine, '#');
    if (line.starts_with("end")) inSection = false;
    if (inSection && !line.empty()) {
      CommaLine fields(line);
      if (fields.CountCommaFields() < static_cast<int>(kMandatoryFields)) {
        file.damagedLine = lineNumber.Value();
        return;
      }
      file.names.emplace_back(fields.GetCommaField(4));
      file.ides.ExtendTo(records.Value());
      TakeFields(fields, file.ides.At(records.Value()));
      records.Step();
    }
    if (line.starts_with("cars")) inSection = true;
  }
}

std::string WriteDefinitions(std::string_view onDisk, const Table<IdeEntry>& ides) {
  constexpr SectionRules kCars = {.opening = "cars",
                                  .commentColumns = std::string_view::npos,
                                  .hasBanner = true,
                                  .onlyOnce = false};
  return WithSectionRewritten(onDisk, kCars, [&](std::string& out) {
    for (const IdeEntry& entry : ides.Walk()) AddDefinitionLine(out, entry);
  });
}

}  // namespace wheelwright
