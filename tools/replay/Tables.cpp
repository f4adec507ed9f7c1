#include "replay/Tables.h"

#include "core/CodePage.h"
#include "formats/DefinitionFile.h"
#include "formats/HandlingLine.h"
#include "replay/ScriptError.h"

namespace wheelwright::replay {
namespace {

Json FieldsOf(const Car& car) {
  Json fields{{"LineKind", car.LineKind}};
  for (const HandlingToken& field : kHandlingTokens) {
    fields[field.name] = ToUnicode(car.*field.value);
  }
  return fields;
}

Json FieldsOf(const IdeEntry& entry) {
  Json fields = Json::object();
  for (const DefinitionValue& field : kDefinitionValues) {
    fields[field.name] = ToUnicode(entry.*field.value);
  }
  return fields;
}

Json FieldsOf(const ColorEntry& color) {
  return {{"Index", color.Index},
          {"Red", color.Red},
          {"Green", color.Green},
          {"Blue", color.Blue},
          {"ColorName", ToUnicode(color.ColorName)}};
}

Json FieldsOf(const CarColorEntry& entry) {
  Json first = Json::array();
  Json second = Json::array();
  for (const ColorPair& pair : entry.Pairs) {
    first.push_back(pair.Color1);
    second.push_back(pair.Color2);
  }
  return {{"ModelName", ToUnicode(entry.ModelName)}, {"Color1", first}, {"Color2", second}};
}

template <class Record>
Json RecordsOf(const Table<Record>& table) {
  if (!table.IsAllocated()) return nullptr;
  Json records = Json::array();
  for (const Record& record : table.Walk()) records.push_back(FieldsOf(record));
  return records;
}

}  // namespace

Json RecordsOf(const Vars& vars, const std::string& table) {
  if (table == "Cars") return RecordsOf(vars.Cars);
  if (table == "Kopie_Cars") return RecordsOf(vars.Kopie_Cars);
  if (table == "Ides") return RecordsOf(vars.Ides);
  if (table == "Kopie_Ides") return RecordsOf(vars.Kopie_Ides);
  if (table == "Colors") return RecordsOf(vars.Colors);
  if (table == "Kopie_Colors") return RecordsOf(vars.Kopie_Colors);
  if (table == "CarColors") return RecordsOf(vars.CarColors);
  if (table == "Kopie_CarColors") return RecordsOf(vars.Kopie_CarColors);
  throw ScriptError("there is no table " + table);
}

}  // namespace wheelwright::replay
