#include "editor/ShowVehicle.h"

#include "editor/ColorPairs.h"
#include "editor/DefinitionRecord.h"
#include "editor/HandlingRecord.h"

#include <string>

namespace wheelwright {

void ShowVehicle(Session& session) {
  PickList& list = session.main.cmbAutos;
  if (list.Count() < 1) return;
  const std::string chosen = list.Text();
  const bool wasSaved = session.vars.IsSaved;
  switch (session.vars.CurrentFileType) {
    case kHandlingFile:
      ShowHandlingRecord(session);
      break;
    case kDefinitionFile:
      ShowDefinitionRecord(session);
      break;
    case kColorFile:
      ShowColorPairs(session);
      break;
    default:
      break;
  }
  // An entry without a record shows record 0, whose name box has then renamed the entry.
  if (list.Text() != chosen) list.ReplaceRow(list.Row(), chosen);
  session.vars.IsSaved = wasSaved;
}

}  // namespace wheelwright
