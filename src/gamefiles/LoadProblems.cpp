#include "gamefiles/LoadProblems.h"

#include <utility>

namespace wheelwright {

void AddLoadProblem(Session& session, std::string vehicle, std::string parameter,
                    std::string problem) {
  session.error.lstErrors.AddRow({std::move(vehicle), std::move(parameter), std::move(problem)});
  session.error.SetVisible(true);
}

void AddTokenCountProblem(Session& session, std::string vehicle, int tokens) {
  const auto& lang = session.vars.Lang;
  AddLoadProblem(session, std::move(vehicle), "",
                 lang[102] + ": " + std::to_string(tokens) + " " + lang[103]);
}

void ClearLoadProblems(Session& session) { session.error.lstErrors.Clear(); }

void HideLoadProblems(Session& session) { session.error.SetVisible(false); }

}  // namespace wheelwright
