#include "gamefiles/DefinitionReader.h"

#include "core/Numbers.h"
#include "gamefiles/CommaFields.h"
#include "gamefiles/Lines.h"
#include "screen/DefinitionFields.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

constexpr int kMandatoryFields = 11;

// The first count sees a comma at the end of the line as a field; taking the fields strips such
// commas, so that the later counts may see fewer.
void TakeFields(CommaLine& line, IdeEntry& entry) {
  for (int position = 0; position < kMandatoryFields; ++position) {
    entry.*kDefinitionFields[static_cast<std::size_t>(position)].value = line.Field(position);
  }
  if (line.Count() >= 12) entry.Extra1 = line.Field(11);
  if (line.Count() >= 13) entry.Extra2 = line.Field(12);
}

}  // namespace

std::optional<int> LoadDefinitionFile(Session& session) {
  const std::string text = session.files.Read(session.vars.CurrentFile);
  Table<IdeEntry>& ides = session.vars.Kopie_Ides;
  ides.Reset();
  std::vector<std::string> keys;
  Counter16 records;
  Counter16 lineNumber;
  bool inSection = false;
  for (const std::string_view rawLine : Lines(text)) {
    lineNumber.Step();
    const std::string_view line = BeforeMark(rawLine, '#');
    if (line.starts_with("end")) inSection = false;
    if (inSection && !line.empty()) {
      CommaLine fields(line);
      if (fields.Count() < kMandatoryFields) return lineNumber.Value();
      keys.emplace_back(fields.Field(4));
      ides.ExtendTo(records.Value());
      TakeFields(fields, ides.At(records.Value()));
      records.Step();
    }
    if (line.starts_with("cars")) inSection = true;
  }
  session.main.cmbAutos.AddRows(std::move(keys));
  session.vars.Ides = ides;
  return std::nullopt;
}

}  // namespace wheelwright
