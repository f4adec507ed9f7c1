#include "exchange/ExportWindow.h"

#include "screen/Captions.h"
#include "screen/HandlingFields.h"

#include <string>
#include <vector>

namespace wheelwright {

void OpenExportWindow(Session& session) {
  FrmExport& window = session.exporter;
  CaptionExportWindow(session);
  window.lst1.Clear();
  window.lst2.Clear();
  window.lst1.AddRows(session.main.cmbAutos.Rows());
  window.SetVisible(true);
}

void CaptionExportWindow(Session& session) {
  for (const CaptionRow& row : CaptionsOf(session.exporter)) {
    if (row.lang != kNoLang)
      row.control.SetCaption(session.vars.Lang[static_cast<std::size_t>(row.lang)]);
  }
}

void MoveMarkedRows(MarkList& from, MarkList& to) {
  std::vector<std::string> marked;
  for (const int row : from.Marked()) marked.push_back(from.Rows()[static_cast<std::size_t>(row)]);
  to.AddRows(marked);
  from.RemoveMarked();
}

void MoveAllRows(MarkList& from, MarkList& to) {
  to.AddRows(from.Rows());
  from.Clear();
}

void UnloadExportWindow(Session& session) {
  FrmExport& window = session.exporter;
  window.SetVisible(false);
  window.lst1.Clear();
  window.lst2.Clear();
}

}  // namespace wheelwright
