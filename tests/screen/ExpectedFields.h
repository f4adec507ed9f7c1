// The fields of the two kinds of records as the windows must show them.
#pragma once

#include "screen/DefinitionFields.h"
#include "screen/HandlingFields.h"

#include <array>
#include <string>

namespace wheelwright::testing {

// A row of a tab by the names of its controls; captions are UTF-8, and what isn't there is empty.
struct ExpectedRow {
  int tab;
  int row;
  const char* label;
  const char* caption;
  int lang;
  const char* input;
  const char* info;
  const char* infoCaption;
  int infoLang;
};

struct ExpectedHandlingField {
  const char* name;
  std::string Car::*value;
  bool named;
  int order;
  ExpectedRow shown;
};

struct ExpectedDefinitionField {
  const char* name;
  std::string IdeEntry::*value;
  int order;
  ExpectedRow shown;
};


// clang-format off
inline const std::array<ExpectedHandlingField, 33> kExpectedHandlingFields = {{
    {"CarName", &Car::CarName, true, 1, {kGeneralTab, 0, "lblAutoname", "Autoname", 15, "txtAutoname", "lblAutonameInfo", "(Maximal 14 Buchstaben)", 16}},
    {"Mass", &Car::Mass, true, 2, {kGeneralTab, 1, "lblGewicht", "Gewicht (kg)", 17, "txtGewicht", "lblGewichtInfo", "(1.0 bis 50000.0)", 18}},
    {"DimensionX", &Car::DimensionX, true, 3, {kDimensionsTab, 0, "lblBreite", "Breite (m)", 19, "txtBreite", "lblBreiteInfo", "(0.0 > x > 20.0)", 20}},
    {"DimensionY", &Car::DimensionY, true, 4, {kDimensionsTab, 1, "lblHoehe", "Höhe (m)", 21, "txtHoehe", "lblHoeheInfo", "(0.0 > x > 20.0)", 22}},
    {"DimensionZ", &Car::DimensionZ, true, 5, {kDimensionsTab, 2, "lblLaenge", "Länge (m)", 23, "txtLaenge", "lblLaengeInfo", "(0.0 > x > 20.0)", 24}},
    {"CenterOfMassX", &Car::CenterOfMassX, true, 6, {kDimensionsTab, 3, "lblMassenmittelpX", "Massenmittelp. X", 25, "txtMassenmittelpX", "lblMassenmittelpXInfo", "(-10.0 > x > 10.0)", 26}},
    {"CenterOfMassY", &Car::CenterOfMassY, true, 7, {kDimensionsTab, 4, "lblMassenmittelpY", "Massenmittelp. Y", 27, "txtMassenmittelpY", "lblMassenmittelpYInfo", "(-10.0 > x > 10.0)", 28}},
    {"CenterOfMassZ", &Car::CenterOfMassZ, true, 8, {kDimensionsTab, 5, "lblMassenmittelpZ", "Massenmittelp. Z", 29, "txtMassenmittelpZ", "lblMassenmittelpZInfo", "(-10.0 > x > 10.0)", 30}},
    {"PercentSubmerged", &Car::PercentSubmerged, true, 9, {kDimensionsTab, 6, "lblSubMerged", "Versinkt (%)", 31, "txtSubMerged", "lblSubMergedInfo", "im Wasser (10 to 120)", 32}},
    {"TractionMultiplier", &Car::TractionMultiplier, true, 10, {kDriveTab, 0, "lblTractionMulti", "Zugkraft - Multipl.", 33, "txtTractionMulti", "lblTractionMultiInfo", "(0.5 bis 2.0)", 34}},
    {"TractionLoss", &Car::TractionLoss, true, 11, {kDriveTab, 1, "lblTractionLoss", "Zugkraft - Verlust", 35, "txtTractionLoss", "lblTractionLossInfo", "(0.0 > x > 1.0)", 36}},
    {"TractionBias", &Car::TractionBias, true, 12, {kDriveTab, 2, "lblTractionBias", "Zugkraft - Vorsp.", 37, "txtTractionBias", "lblTractionBiasInfo", "(0.0 > x > 1.0)", 38}},
    {"GearCount", &Car::GearCount, true, 14, {kDriveTab, 3, "lblGaenge", "Anzahl Gänge", 39, "txtGaenge", "lblGaengeInfo", "(1 bis 5)", 40}},
    {"MaxVelocity", &Car::MaxVelocity, true, 15, {kDriveTab, 4, "lblGeschwindigkeit", "Geschw. (km/h)", 41, "txtGeschwindigkeit", "lblGeschwindigkeitInfo", "(5.0 bis 150.0)", 42}},
    {"EngineAcceleration", &Car::EngineAcceleration, true, 16, {kDriveTab, 5, "lblBeschleunigung", "Beschl. (m/s^2)", 43, "txtBeschleunigung", "lblBeschleunigungInfo", "(0.1 bis 10.0)", 44}},
    {"DriveType", &Car::DriveType, false, 17, {kDriveTab, 6, "lblAntrieb", "Antrieb", 45, "cmbAntrieb", "", "", kNoLang}},
    {"EngineType", &Car::EngineType, true, 18, {kDriveTab, 7, "lblMotorTyp", "Motor-Typ", 49, "cmbMotor", "", "", kNoLang}},
    {"BrakeDeceleration", &Car::BrakeDeceleration, true, 19, {kBrakesTab, 0, "lblBremsstaerke", "Bremsstärke", 53, "txtBremsstaerke", "lblBremsstaerkeInfo", "(0.1 bis 10.0)", 54}},
    {"BrakeBias", &Car::BrakeBias, true, 20, {kBrakesTab, 1, "lblBrakeBias", "Brake Bias", 55, "txtBrakeBias", "lblBrakeBiasInfo", "(0.0 bis 1.0)", 56}},
    {"ABS", &Car::ABS, true, 21, {kBrakesTab, 2, "lblABS", "ABS", 57, "chkABS", "", "", kNoLang}},
    {"SteeringLock", &Car::SteeringLock, true, 22, {kSuspensionTab, 0, "lblRadeinschlag", "Radeinschlag", 58, "txtRadeinschlag", "lblRadeinschlagInfo", "(10.0 bis 40.0)", 59}},
    {"SuspensionForceLevel", &Car::SuspensionForceLevel, true, 23, {kSuspensionTab, 1, "lblKraftlevel", "Kraftlevel", 65, "txtKraftlevel", "lblKraftlevelInfo", "(>= 0.0)", 66}},
    {"SuspensionDampingLevel", &Car::SuspensionDampingLevel, true, 24, {kSuspensionTab, 2, "lblDLevel", "Dämpfungslevel", 67, "txtDLevel", "lblDLevelInfo", "(>= 0.0)", 68}},
    {"SeatOffset", &Car::SeatOffset, true, 29, {kGeneralTab, 2, "lblPedSeat", "Ped Seat Offset", 75, "txtPedSeat", "lblPedSeatInfo", "(>= 0.0)", 76}},
    {"CollisionDamageMultiplier", &Car::CollisionDamageMultiplier, true, 30, {kGeneralTab, 3, "lblKoll", "Koll.-Schaden-Multipl.", 77, "txtKoll", "lblKollInfo", "(0.2 bis 5.0)", 78}},
    {"MonetaryValue", &Car::MonetaryValue, true, 31, {kGeneralTab, 4, "lblPreis", "Geldwert/Preis", 79, "txtPreis", "lblPreisInfo", "(1 bis 100000)", 80}},
    {"suspension_upper_limit", &Car::suspension_upper_limit, true, 25, {kSuspensionTab, 3, "lblOLimit", "Oberes Limit", 69, "txtOLimit", "lblOLimitInfo", "(-1.0 bis 1.0)", 70}},
    {"suspension_lower_limit", &Car::suspension_lower_limit, true, 26, {kSuspensionTab, 4, "lblULimit", "Unteres Limit", 71, "txtULimit", "lblULimitInfo", "(-1.0 bis 1.0)", 72}},
    {"SuspensionBias", &Car::SuspensionBias, true, 27, {kSuspensionTab, 5, "lblBias", "Bias between F/R", 73, "txtBias", "lblBiasInfo", "(-1.0 bis 1.0)", 74}},
    {"SuspensionAntiDive", &Car::SuspensionAntiDive, false, 28, {kSuspensionTab, 6, "lblDive", "Anti-Tauch Multipl", 178, "txtDive", "lblDiveInfo", "(-1.0 bis 1.0)", 179}},
    {"ModelFlags", &Car::ModelFlags, false, 34, {kFlagsTab, kNoTabRow, "", "", kNoLang, "", "", "", kNoLang}},
    {"FrontLights", &Car::FrontLights, true, 32, {kGeneralTab, 5, "lblFrontLichter", "Vorderlichter", 81, "cmbFrontLichter", "", "", kNoLang}},
    {"RearLights", &Car::RearLights, true, 33, {kGeneralTab, 6, "lblRearLichter", "Hinterlichter", 86, "cmbRearLichter", "", "", kNoLang}},
}};

inline const std::array<ExpectedDefinitionField, 13> kExpectedDefinitionFields = {{
    {"ID", &IdeEntry::ID, 1, {kReferencesTab, 0, "lblID", "ID", 125, "txtID", "lblIDInfo", "ID in der default.ide", 126}},
    {"ModelName", &IdeEntry::ModelName, 3, {kReferencesTab, 1, "lblModelName", "Model-Name", 129, "txtModelName", "lblModelNameInfo", "Referenz zum 3D-Modell", 130}},
    {"TXDName", &IdeEntry::TXDName, 4, {kReferencesTab, 2, "lblTXDName", "TXD-Name", 131, "txtTXDName", "lblTXDNameInfo", "Referenz zur Textur", 132}},
    {"Typ", &IdeEntry::Typ, 6, {kPropertiesTab, 0, "lblTyp", "Typ", 135, "cmbTyp", "lblTypInfo", "Fahrzeugtyp", 136}},
    {"HandlingID", &IdeEntry::HandlingID, 2, {kReferencesTab, 3, "lblHandlingID", "Handling-ID", 127, "txtHandlingID", "lblHandlingIDInfo", "Referenz zu handling.cfg", 128}},
    {"GameName", &IdeEntry::GameName, 5, {kReferencesTab, 4, "lblGameName", "Game-Name", 133, "txtGameName", "lblGameNameInfo", "Referenz zum Namen im Spiel", 134}},
    {"Anim", &IdeEntry::Anim, 7, {kPropertiesTab, 1, "lblAnim", "Anim", 180, "cmbAnim", "lblAnimInfo", "Animation", 181}},
    {"Klasse", &IdeEntry::Klasse, 8, {kPropertiesTab, 2, "lblKlasse", "Klasse", 137, "cmbKlasse", "lblKlasseInfo", "Wer fährt dieses Fahrzeug", 138}},
    {"Frequenz", &IdeEntry::Frequenz, 9, {kPropertiesTab, 3, "lblFrequenz", "Frequenz", 139, "txtFrequenz", "lblFrequenzInfo", "Häufigkeit des Auftretens", 140}},
    {"Level", &IdeEntry::Level, 10, {kPropertiesTab, 4, "lblLevel", "Level", 141, "txtLevel", "lblLevelInfo", "Unbekannt", 142}},
    {"CompRules", &IdeEntry::CompRules, 11, {kPropertiesTab, 5, "lblCompRules", "Comprules", 143, "txtCompRules", "lblCompRulesInfo", "Unbekannt", 144}},
    {"Extra1", &IdeEntry::Extra1, kByTypeRules, {kPropertiesTab, 6, "lblExtra1", "Extra 1", 145, "txtExtra1", "lblExtra1Info", "Extra 1 Info", 146}},
    {"Extra2", &IdeEntry::Extra2, kByTypeRules, {kPropertiesTab, 7, "lblExtra2", "Extra 2", 148, "txtExtra2", "lblExtra2Info", "Extra 2 Info", 149}},
}};
// clang-format on

}  // namespace wheelwright::testing
