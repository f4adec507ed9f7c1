#include "gamefiles/LoadProblems.h"

#include "screen/Fields.h"

#include <algorithm>

namespace wheelwright {
namespace {

// Empty for a problem with the whole line and for a field that isn't named in problems.
std::string CaptionOf(const FrmMain& main, FieldText Car::*value) {
  const auto field = std::find_if(kHandlingFields.begin(), kHandlingFields.end(),
                                  [&](const FieldRow<Car>& row) { return row.value == value; });
  const bool isNamed = field != kHandlingFields.end() && field->isNamedInProblems;
  return isNamed ? LabelsOf(main, *field).label.Caption() : "";
}

ReportList::Row RowOf(const Session& session, const LineProblem& problem) {
  const auto& lang = session.vars.Lang;
  if (problem.field == nullptr) {
    return {problem.vehicle, "",
            lang[kWrongNumberOfValues] + ": " + std::to_string(problem.tokens) + " " + lang[kInsteadOf33]};
  }
  return {problem.vehicle, CaptionOf(session.main, problem.field),
          lang[problem.failed == TokenCheck::MustNotBeNumeric ? kMustNotBeNumber : kMustBeNumber]};
}

}  // namespace

void AddLoadProblems(Session& session, const LineProblems& problems) {
  for (const LineProblem& problem : problems) {
    session.error.lstErrors.AddRow(RowOf(session, problem));
  }
  if (!problems.empty()) session.error.SetVisible(true);
}

void HideLoadProblems(Session& session) { session.error.SetVisible(false); }

}  // namespace wheelwright
