#include "screen/DefinitionFields.h"

#include <algorithm>

namespace wheelwright {

// clang-format off
const std::array<DefinitionField, kDefinitionFieldCount> kDefinitionFields = {{
    {"ID", &IdeEntry::ID, 1, kReferencesTab, 0, &FrmMain::lblID, "ID", 125, &FrmMain::txtID, nullptr, &FrmMain::lblIDInfo, "ID in der default.ide", 126},
    {"ModelName", &IdeEntry::ModelName, 3, kReferencesTab, 1, &FrmMain::lblModelName, "Model-Name", 129, &FrmMain::txtModelName, nullptr, &FrmMain::lblModelNameInfo, "Referenz zum 3D-Modell", 130},
    {"TXDName", &IdeEntry::TXDName, 4, kReferencesTab, 2, &FrmMain::lblTXDName, "TXD-Name", 131, &FrmMain::txtTXDName, nullptr, &FrmMain::lblTXDNameInfo, "Referenz zur Textur", 132},
    {"Typ", &IdeEntry::Typ, 6, kPropertiesTab, 0, &FrmMain::lblTyp, "Typ", 135, nullptr, &FrmMain::cmbTyp, &FrmMain::lblTypInfo, "Fahrzeugtyp", 136},
    {"HandlingID", &IdeEntry::HandlingID, 2, kReferencesTab, 3, &FrmMain::lblHandlingID, "Handling-ID", 127, &FrmMain::txtHandlingID, nullptr, &FrmMain::lblHandlingIDInfo, "Referenz zu handling.cfg", 128},
    {"GameName", &IdeEntry::GameName, 5, kReferencesTab, 4, &FrmMain::lblGameName, "Game-Name", 133, &FrmMain::txtGameName, nullptr, &FrmMain::lblGameNameInfo, "Referenz zum Namen im Spiel", 134},
    {"Anim", &IdeEntry::Anim, 7, kPropertiesTab, 1, &FrmMain::lblAnim, "Anim", 180, nullptr, &FrmMain::cmbAnim, &FrmMain::lblAnimInfo, "Animation", 181},
    {"Klasse", &IdeEntry::Klasse, 8, kPropertiesTab, 2, &FrmMain::lblKlasse, "Klasse", 137, nullptr, &FrmMain::cmbKlasse, &FrmMain::lblKlasseInfo, "Wer fährt dieses Fahrzeug", 138},
    {"Frequenz", &IdeEntry::Frequenz, 9, kPropertiesTab, 3, &FrmMain::lblFrequenz, "Frequenz", 139, &FrmMain::txtFrequenz, nullptr, &FrmMain::lblFrequenzInfo, "Häufigkeit des Auftretens", 140},
    {"Level", &IdeEntry::Level, 10, kPropertiesTab, 4, &FrmMain::lblLevel, "Level", 141, &FrmMain::txtLevel, nullptr, &FrmMain::lblLevelInfo, "Unbekannt", 142},
    {"CompRules", &IdeEntry::CompRules, 11, kPropertiesTab, 5, &FrmMain::lblCompRules, "Comprules", 143, &FrmMain::txtCompRules, nullptr, &FrmMain::lblCompRulesInfo, "Unbekannt", 144},
    {"Extra1", &IdeEntry::Extra1, kByTypeRules, kPropertiesTab, 6, &FrmMain::lblExtra1, "Extra 1", 145, &FrmMain::txtExtra1, nullptr, &FrmMain::lblExtra1Info, "Extra 1 Info", 146},
    {"Extra2", &IdeEntry::Extra2, kByTypeRules, kPropertiesTab, 7, &FrmMain::lblExtra2, "Extra 2", 148, &FrmMain::txtExtra2, nullptr, &FrmMain::lblExtra2Info, "Extra 2 Info", 149},
}};
// clang-format on

std::vector<const DefinitionField*> DefinitionFieldsByDisplay() {
  std::vector<const DefinitionField*> fields;
  for (const DefinitionField& field : kDefinitionFields) {
    if (field.displayOrder != kByTypeRules) fields.push_back(&field);
  }
  std::sort(fields.begin(), fields.end(), [](const auto* left, const auto* right) {
    return left->displayOrder < right->displayOrder;
  });
  return fields;
}

}  // namespace wheelwright
