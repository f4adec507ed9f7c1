#include "forms/qt/layout/FieldRows.h"
#include "forms/qt/layout/Layouts.h"
#include "screen/DefinitionFields.h"

#include <algorithm>
#include <vector>

namespace wheelwright {
namespace {

std::vector<const DefinitionField*> FieldsOf(DefinitionTab tab) {
  std::vector<const DefinitionField*> fields;
  for (const DefinitionField& field : kDefinitionFields) {
    if (field.tab == tab) fields.push_back(&field);
  }
  std::sort(fields.begin(), fields.end(),
            [](const auto* left, const auto* right) { return left->tabRow < right->tabRow; });
  return fields;
}

void BuildRows(FrmMain& main, DefinitionTab tab, QWidget& page, MirrorSet& mirrors) {
  FieldRows rows(page, mirrors);
  for (const DefinitionField* field : FieldsOf(tab)) {
    rows.StartRow(main.*field->label);
    if (field->text != nullptr) rows.AddInput(main.*field->text);
    if (field->pick != nullptr) rows.AddInput(main.*field->pick);
    if (field->text == &FrmMain::txtExtra1) rows.AddInput(main.cmbExtra1);
    rows.AddInfo(main.*field->info);
  }
  rows.Finish();
}

}  // namespace

void BuildDefinitionPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors) {
  BuildRows(main, kReferencesTab, group.Page(kReferencesTab), mirrors);
  BuildRows(main, kPropertiesTab, group.Page(kPropertiesTab), mirrors);
  BuildPicturePage(group.Page(kDefinitionPictureTab), main.picFrame2, main.picCar2, mirrors);
}

}  // namespace wheelwright
