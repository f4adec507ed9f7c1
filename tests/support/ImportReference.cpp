#include "support/ImportReference.h"

#include "support/HandlingReference.h"
#include "support/VehicleTokens.h"

#include <algorithm>

namespace wheelwright::testing {

void PlainImport(Session& session, const std::string& text) {
  PickList& list = session.main.cmbAutos;
  for (const std::string& line : PlainLines(text)) {
    std::string name(line.substr(0, 14));
    if (line.size() <= 14 || name.find(';') != std::string::npos) continue;
    while (!name.empty() && name.front() == ' ') name.erase(0, 1);
    while (!name.empty() && name.back() == ' ') name.pop_back();
    if (std::count(list.Rows().begin(), list.Rows().end(), name) == 0) list.AddRow(name);
  }
  Table<Car>& cars = session.vars.Cars;
  int next = cars.UpperBound() + 1;
  for (const std::string& wholeLine : PlainLines(text)) {
    const Tokens tokens = PlainTokens(wholeLine);
    std::string line = wholeLine;
    for (const std::string& row : list.Rows()) {
      if (line.substr(0, row.size()) != row) continue;
      cars.ExtendTo(next);
      LineProblems problems;
      cars.At(next) = PlainRecord(tokens, problems);
      for (const ReportList::Row& problem : RowsOf(problems, session.main))
        session.error.lstErrors.AddRow(problem);
      line = Joined(tokens);
      ++next;
    }
  }
  list.Choose(0);
}

}  // namespace wheelwright::testing
