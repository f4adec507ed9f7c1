#include "soak/SessionState.h"

#include "core/Text.h"
#include "support/TableRecords.h"

#include <algorithm>
#include <utility>

namespace wheelwright::soak {

SessionState StateOf(const Session& session, Files disk) {
  const Vars& vars = session.vars;
  SessionState held;
  held.working = {testing::RecordsOf(vars.Cars), testing::RecordsOf(vars.Ides),
                  testing::RecordsOf(vars.Colors), testing::RecordsOf(vars.CarColors)};
  held.snapshot = {testing::RecordsOf(vars.Kopie_Cars), testing::RecordsOf(vars.Kopie_Ides),
                   testing::RecordsOf(vars.Kopie_Colors), testing::RecordsOf(vars.Kopie_CarColors)};
  held.file = vars.CurrentFile;
  held.fileType = vars.CurrentFileType;
  held.isSaved = vars.IsSaved;
  held.vehicles = session.main.cmbAutos.Rows();
  held.exported = session.exporter.lst2.Rows();
  held.author = session.main.txtAuthor.Text();
  held.date = session.main.txtDate.Text();
  held.disk = std::move(disk);
  return held;
}

std::vector<std::string> SortedAsInLists(std::vector<std::string> texts) {
  const auto isBefore = [](const std::string& left, const std::string& right) {
    return FoldedCase(left) < FoldedCase(right);
  };
  std::stable_sort(texts.begin(), texts.end(), isBefore);
  return texts;
}

}  // namespace wheelwright::soak
