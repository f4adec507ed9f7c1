// Every edit goes into the current record at once and marks the file as changed. Nothing is
// checked. The handlers don't care whether a person or a display changed the control. Failure 9 if
// the current index is outside the table.
#pragma once

#include "screen/Fields.h"
#include "screen/Session.h"

namespace wheelwright {

// A text box of the handling tabs. The name also takes the place of the chosen entry of cmbAutos,
// which stays where it is in the list.
void StoreHandlingText(Session& session, const FieldRow<Car>& field);

// A pick list whose entries are translated: the code of the chosen position.
void StoreCode(Session& session, const FieldRow<Car>& field);

// chkABS: its state in decimal.
void StoreABS(Session& session);

// A text box of the definition tabs. The handling ID also takes the place of the chosen entry.
void StoreDefinitionText(Session& session, const FieldRow<IdeEntry>& field);

// A pick list of the definition tabs: the text of the chosen entry.
void StoreDefinitionPick(Session& session, const FieldRow<IdeEntry>& field);

// txtAuthor and txtDate, which no table holds.
void MarkAsChanged(Session& session);

}  // namespace wheelwright
