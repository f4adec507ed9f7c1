#include "editor/ShowVehicle.h"

#include "editor/ColorPairs.h"
#include "editor/DefinitionRecord.h"

#include <array>
#include <string>

namespace wheelwright {
namespace {

// In the order of FileType.
constexpr std::array kShowRecord = {ShowHandlingRecord, ShowDefinitionRecord, ShowColorPairs};

}  // namespace

void ShowVehicle(Session& session) {
  PickList& list = session.main.cmbAutos;
  if (list.Count() < 1) return;
  const std::string chosen = list.Text();
  const bool wasSaved = session.vars.IsSaved;
  const auto kind = static_cast<std::size_t>(session.vars.CurrentFileType);
  if (kind < kShowRecord.size()) kShowRecord[kind](session);
  // An entry without a record shows record 0, whose name box has then renamed the entry.
  if (list.Text() != chosen) list.ReplaceRow(list.Row(), chosen);
  session.vars.IsSaved = wasSaved;
}

}  // namespace wheelwright
