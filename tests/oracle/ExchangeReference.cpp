#include "oracle/ExchangeReference.h"

#include "core/Text.h"
#include "oracle/PlainTexts.h"
#include "support/VehicleTokens.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

void AddName(const std::string& name, PlainImport& import) {
  std::vector<std::string>& rows = import.rows;
  if (std::count(rows.begin(), rows.end(), name) > 0) return;
  const auto isGreater = [&](const std::string& row) { return FoldedCase(row) > FoldedCase(name); };
  rows.insert(std::find_if(rows.begin(), rows.end(), isGreater), name);
  import.newNames.push_back(name);
}

}  // namespace

PlainImport ImportPlainly(const std::string& text, std::vector<std::string> rows, std::vector<Car> cars) {
  PlainImport import{{}, std::move(rows), std::move(cars), {}};
  for (const std::string& line : PlainLines(text)) {
    const std::string head = line.substr(0, 14);
    if (line.size() > 14 && head.find(';') == std::string::npos) AddName(CutBlanks(head), import);
  }
  for (std::string line : PlainLines(text)) {
    const Tokens tokens = PlainTokens(line);
    for (const std::string& row : import.rows) {
      if (!line.starts_with(row)) continue;
      import.cars.push_back(PlainRecord(tokens, import.problems));
      line = Joined(tokens);
    }
  }
  return import;
}

std::string ExportPlainly(const PlainVehicles& vehicles) {
  return "; File created with Wheelwright V1.0.0\r\n; Homepage: https://wheelwright.example/\r\n"
         "; Author: " +
         vehicles.author + "\r\n; Created " + vehicles.created +
         "\r\n;\r\n; > COMMENTS <\r\n; ------------\r\n; TWEAK AT YOUR OWN RISK\r\n;\r\n"
         "; > THE DATA <\r\n; ------------\r\n;\r\n" +
         VehicleLinesPlainly(vehicles) + ";\r\n;the end\r\n";
}

}  // namespace wheelwright::testing
