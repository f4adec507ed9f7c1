#include "language/ApplyLanguage.h"

#include "screen/Captions.h"
#include "screen/Fields.h"

namespace wheelwright {
namespace {

const std::string& EntryOf(const Session& session, int index) {
  return session.vars.Lang[static_cast<std::size_t>(index)];
}

template <class Fields>
void ApplyFields(Session& session, const Fields& fields) {
  for (const auto& field : fields) {
    for (const FieldCaption& caption : {field.label, field.hint}) {
      if (caption.control == nullptr) continue;
      (session.main.*caption.control).SetCaption(EntryOf(session, caption.lang));
    }
    if (field.entries.firstLang == kNoLang) continue;
    PickList& list = *InputOf<PickList>(session.main, field);
    for (int row = 0; row < list.Count(); ++row) {
      list.ReplaceRow(row, EntryOf(session, field.entries.firstLang + row));
    }
  }
}

}  // namespace

void ApplyLanguage(Session& session) {
  ApplyCaptions(CaptionsOf(session.main), session.vars.Lang);
  for (const TabCaptionRow& row : TabCaptionsOf(session.main)) {
    row.group.SetTab(row.tab, EntryOf(session, row.lang));
  }
  ApplyFields(session, kHandlingFields);
  ApplyFields(session, kDefinitionFields);
  ApplyCaptions(CaptionsOf(session.error), session.vars.Lang);
  for (const ColumnCaptionRow& row : ColumnCaptions()) {
    session.error.lstErrors.SetColumn(row.column, EntryOf(session, row.lang));
  }
  ApplyCaptions(CaptionsOf(session.exporter), session.vars.Lang);
}

}  // namespace wheelwright
