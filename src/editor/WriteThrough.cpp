#include "editor/WriteThrough.h"

#include <string>
#include <string_view>

namespace wheelwright {
namespace {

void RenameChosenEntry(Session& session, const std::string& text) {
  PickList& list = session.main.cmbAutos;
  if (list.Row() != RowList::kNoRow) list.ReplaceRow(list.Row(), text);
}

}  // namespace

void StoreHandlingText(Session& session, const FieldRow<Car>& field) {
  const std::string& text = InputOf<TextBox>(session.main, field)->Text();
  session.vars.ShownCar().*field.value = text;
  session.vars.IsSaved = false;
  if (field.value == &Car::CarName) RenameChosenEntry(session, text);
}

void StoreCode(Session& session, const FieldRow<Car>& field) {
  const int row = InputOf<PickList>(session.main, field)->Row();
  const std::string_view codes = field.entries.codes;
  if (row >= 0 && row < static_cast<int>(codes.size())) {
    session.vars.ShownCar().*field.value = codes.substr(static_cast<std::size_t>(row), 1);
  }
  session.vars.IsSaved = false;
}

void StoreABS(Session& session) {
  session.vars.ShownCar().ABS = std::to_string(session.main.chkABS.State());
  session.vars.IsSaved = false;
}

void StoreDefinitionText(Session& session, const FieldRow<IdeEntry>& field) {
  const std::string& text = InputOf<TextBox>(session.main, field)->Text();
  session.vars.IsSaved = false;
  session.vars.ShownIde().*field.value = text;
  if (field.value == &IdeEntry::HandlingID) RenameChosenEntry(session, text);
}

void StoreDefinitionPick(Session& session, const FieldRow<IdeEntry>& field) {
  session.vars.IsSaved = false;
  session.vars.ShownIde().*field.value = InputOf<PickList>(session.main, field)->Text();
}

void MarkAsChanged(Session& session) { session.vars.IsSaved = false; }

}  // namespace wheelwright
