#include "support/ImportReference.h"

#include "gamefiles/HandlingLine.h"
#include "screen/HandlingFields.h"
#include "support/HandlingReference.h"

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
  int next = session.vars.Cars.UpperBound() + 1;
  for (const std::string& wholeLine : PlainLines(text)) {
    std::string line(wholeLine);
    for (const std::string& row : list.Rows()) {
      if (line.substr(0, row.size()) != row) continue;
      session.vars.Cars.ExtendTo(next);
      const int count = CountSpaceFields(line);
      if (count != 33) {
        const std::string vehicle = count == 0 ? "0.0" : line.substr(0, line.find(' '));
        session.error.lstErrors.AddRow({vehicle, "", "E102: " + std::to_string(count) + " E103"});
      }
      for (int token = 0; token < 33; ++token) {
        session.vars.Cars.At(next).*kHandlingFields[static_cast<std::size_t>(token)].value =
            ParseHandlingToken(session, line, token);
      }
      ++next;
    }
  }
  list.Choose(0);
}

}  // namespace wheelwright::testing
