#include "language/ApplyLanguage.h"

#include "screen/Captions.h"
#include "screen/DefinitionFields.h"
#include "screen/HandlingFields.h"

#include <string>
#include <vector>

namespace wheelwright {
namespace {

class Applier {
 public:
  explicit Applier(Session& session) : session_(session), main_(session.main) {}

  void ApplyCaptions(const std::vector<CaptionRow>& rows) const {
    for (const CaptionRow& row : rows) {
      if (row.lang != kNoLang) row.control.SetCaption(Entry(row.lang));
    }
  }

  void ApplyHandlingTabs() const {
    for (const HandlingField& field : kHandlingFields) {
      if (field.label != nullptr) (main_.*field.label).SetCaption(Entry(field.captionLang));
      if (field.info != nullptr) (main_.*field.info).SetCaption(Entry(field.infoLang));
    }
    for (const CodeList& list : kCodeLists) {
      PickList& pick = main_.*list.pick;
      for (int row = 0; row < pick.Count(); ++row)
        pick.ReplaceRow(row, Entry(list.firstLang + row));
    }
  }

  void ApplyDefinitionTabs() const {
    for (const DefinitionField& field : kDefinitionFields) {
      (main_.*field.label).SetCaption(Entry(field.captionLang));
      (main_.*field.info).SetCaption(Entry(field.infoLang));
    }
  }

  void ApplyTabs() const {
    for (const TabCaptionRow& row : TabCaptionsOf(main_))
      row.group.SetTab(row.tab, Entry(row.lang));
  }

  void ApplyColumns() const {
    for (const ColumnCaptionRow& row : ColumnCaptions()) {
      session_.error.lstErrors.SetColumn(row.column, Entry(row.lang));
    }
  }

 private:
  const std::string& Entry(int index) const {
    return session_.vars.Lang[static_cast<std::size_t>(index)];
  }

  Session& session_;
  FrmMain& main_;
};

}  // namespace

void ApplyLanguage(Session& session) {
  const Applier applier(session);
  applier.ApplyCaptions(CaptionsOf(session.main));
  applier.ApplyTabs();
  applier.ApplyHandlingTabs();
  applier.ApplyDefinitionTabs();
  applier.ApplyCaptions(CaptionsOf(session.error));
  applier.ApplyColumns();
  applier.ApplyCaptions(CaptionsOf(session.exporter));
}

}  // namespace wheelwright
