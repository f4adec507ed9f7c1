#include "formats/DefinitionFile.h"

#include <span>

namespace wheelwright {
namespace {

constexpr int kMandatoryFields = 11;
constexpr std::size_t kShortText = 7;

// The first count sees a comma at the end of the line as a field; taking the fields strips such
// commas, so that the later counts may see fewer.
void TakeFields(CommaLine& line, IdeEntry& entry) {
  int position = 0;
  for (const DefinitionValue& field : std::span(kDefinitionValues).first(kMandatoryFields)) {
    entry.*field.value = line.GetCommaField(position++);
  }
  if (line.CountCommaFields() >= 12) entry.Extra1 = line.GetCommaField(11);
  if (line.CountCommaFields() >= 13) entry.Extra2 = line.GetCommaField(12);
}

void AddDefinitionLine(std::string& out, const IdeEntry& entry) {
  for (const DefinitionValue& field : std::span(kDefinitionValues).first(kMandatoryFields)) {
    const std::string_view value = entry.*field.value;
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
  ReadSection(text, {.opening = "cars", .mandatoryFields = kMandatoryFields, .nameField = 4}, file,
              TakeFields);
}

std::string WriteDefinitions(std::string_view onDisk, const Table<IdeEntry>& ides) {
  constexpr SectionRules kCars = {
      .opening = "cars", .commentColumns = std::string_view::npos, .hasBanner = true, .onlyOnce = false};
  return WithSectionRewritten(onDisk, kCars, [&](std::string& out) {
    for (const IdeEntry& entry : ides.Walk()) AddDefinitionLine(out, entry);
  });
}

}  // namespace wheelwright
