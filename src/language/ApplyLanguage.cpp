#include "language/ApplyLanguage.h"

#include "screen/Captions.h"
#include "screen/Fields.h"

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

  template <class Fields>
  void ApplyFields(const Fields& fields) const {
    for (const auto& field : fields) {
      for (const FieldCaption& caption : {field.label, field.hint}) {
        if (caption.control != nullptr) (main_.*caption.control).SetCaption(Entry(caption.lang));
      }
      if (field.entries.firstLang == kNoLang) continue;
      PickList& list = *InputOf<PickList>(main_, field);
      for (int row = 0; row < list.Count(); ++row) {
        list.ReplaceRow(row, Entry(field.entries.firstLang + row));
      }
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
  applier.ApplyFields(kHandlingFields);
  applier.ApplyFields(kDefinitionFields);
  applier.ApplyCaptions(CaptionsOf(session.error));
  applier.ApplyColumns();
  applier.ApplyCaptions(CaptionsOf(session.exporter));
}

}  // namespace wheelwright
