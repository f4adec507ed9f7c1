#include "editor/WriteThrough.h"

#include <string>
#include <string_view>

namespace wheelwright {
namespace {

Car& CurrentCarOf(Session& session) { return session.vars.Cars.At(session.vars.CurrentCar); }
IdeEntry& CurrentIdeOf(Session& session) { return session.vars.Ides.At(session.vars.CurrentIde); }

void RenameChosenEntry(Session& session, const std::string& text) {
  PickList& list = session.main.cmbAutos;
  if (list.Row() != RowList::kNoRow) list.ReplaceRow(list.Row(), text);
}

}  // namespace

void StoreHandlingText(Session& session, const FieldRow<Car>& field) {
  const std::string& text = InputOf<TextBox>(session.main, field)->Text();
  CurrentCarOf(session).*field.value = text;
  session.vars.IsSaved = false;
  if (field.value == &Car::CarName) RenameChosenEntry(session, text);
}

void StoreCode(Session& session, const FieldRow<Car>& field) {
  const int row = InputOf<PickList>(session.main, field)->Row();
  const std::string_view codes = field.entries.codes;
  if (row >= 0 && row < static_cast<int>(codes.size())) {
    CurrentCarOf(session).*field.value = codes.substr(static_cast<std::size_t>(row), 1);
  }
  session.vars.IsSaved = false;
}

void StoreABS(Session& session) {
  CurrentCarOf(session).ABS = std::to_string(session.main.chkABS.State());
  session.vars.IsSaved = false;
}

void StoreDefinitionText(Session& session, const FieldRow<IdeEntry>& field) {
  const std::string& text = InputOf<TextBox>(session.main, field)->Text();
  session.vars.IsSaved = false;
  CurrentIdeOf(session).*field.value = text;
  if (field.value == &IdeEntry::HandlingID) RenameChosenEntry(session, text);
}

void StoreDefinitionPick(Session& session, const FieldRow<IdeEntry>& field) {
  session.vars.IsSaved = false;
  CurrentIdeOf(session).*field.value = InputOf<PickList>(session.main, field)->Text();
}

void MarkAsChanged(Session& session) { session.vars.IsSaved = false; }

}  // namespace wheelwright
