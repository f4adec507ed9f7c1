// The fields of the two kinds of records as the windows must show them.
#pragma once

#include "screen/Fields.h"

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

template <class Record>
struct ExpectedField {
  FieldText Record::*value;
  bool named;
  ExpectedRow shown;
};

// Both in the order in which a display fills the controls.
// clang-format off
inline const std::array<ExpectedField<Car>, 32> kExpectedHandlingFields = {{
    {&Car::CarName, true, {kGeneralTab, 0, "lblAutoname", "Autoname", 15, "txtAutoname", "lblAutonameInfo", "(Maximal 14 Buchstaben)", 16}},
    {&Car::Mass, true, {kGeneralTab, 1, "lblGewicht", "Gewicht (kg)", 17, "txtGewicht", "lblGewichtInfo", "(1.0 bis 50000.0)", 18}},
    {&Car::DimensionX, true, {kDimensionsTab, 0, "lblBreite", "Breite (m)", 19, "txtBreite", "lblBreiteInfo", "(0.0 > x > 20.0)", 20}},
    {&Car::DimensionY, true, {kDimensionsTab, 1, "lblHoehe", "Höhe (m)", 21, "txtHoehe", "lblHoeheInfo", "(0.0 > x > 20.0)", 22}},
    {&Car::DimensionZ, true, {kDimensionsTab, 2, "lblLaenge", "Länge (m)", 23, "txtLaenge", "lblLaengeInfo", "(0.0 > x > 20.0)", 24}},
    {&Car::CenterOfMassX, true, {kDimensionsTab, 3, "lblMassenmittelpX", "Massenmittelp. X", 25, "txtMassenmittelpX", "lblMassenmittelpXInfo", "(-10.0 > x > 10.0)", 26}},
    {&Car::CenterOfMassY, true, {kDimensionsTab, 4, "lblMassenmittelpY", "Massenmittelp. Y", 27, "txtMassenmittelpY", "lblMassenmittelpYInfo", "(-10.0 > x > 10.0)", 28}},
    {&Car::CenterOfMassZ, true, {kDimensionsTab, 5, "lblMassenmittelpZ", "Massenmittelp. Z", 29, "txtMassenmittelpZ", "lblMassenmittelpZInfo", "(-10.0 > x > 10.0)", 30}},
    {&Car::PercentSubmerged, true, {kDimensionsTab, 6, "lblSubMerged", "Versinkt (%)", 31, "txtSubMerged", "lblSubMergedInfo", "im Wasser (10 to 120)", 32}},
    {&Car::TractionMultiplier, true, {kDriveTab, 0, "lblTractionMulti", "Zugkraft - Multipl.", 33, "txtTractionMulti", "lblTractionMultiInfo", "(0.5 bis 2.0)", 34}},
    {&Car::TractionLoss, true, {kDriveTab, 1, "lblTractionLoss", "Zugkraft - Verlust", 35, "txtTractionLoss", "lblTractionLossInfo", "(0.0 > x > 1.0)", 36}},
    {&Car::TractionBias, true, {kDriveTab, 2, "lblTractionBias", "Zugkraft - Vorsp.", 37, "txtTractionBias", "lblTractionBiasInfo", "(0.0 > x > 1.0)", 38}},
    {&Car::GearCount, true, {kDriveTab, 3, "lblGaenge", "Anzahl Gänge", 39, "txtGaenge", "lblGaengeInfo", "(1 bis 5)", 40}},
    {&Car::MaxVelocity, true, {kDriveTab, 4, "lblGeschwindigkeit", "Geschw. (km/h)", 41, "txtGeschwindigkeit", "lblGeschwindigkeitInfo", "(5.0 bis 150.0)", 42}},
    {&Car::EngineAcceleration, true, {kDriveTab, 5, "lblBeschleunigung", "Beschl. (m/s^2)", 43, "txtBeschleunigung", "lblBeschleunigungInfo", "(0.1 bis 10.0)", 44}},
    {&Car::DriveType, true, {kDriveTab, 6, "lblAntrieb", "Antrieb", 45, "cmbAntrieb", "", "", kNoLang}},
    {&Car::EngineType, true, {kDriveTab, 7, "lblMotorTyp", "Motor-Typ", 49, "cmbMotor", "", "", kNoLang}},
    {&Car::BrakeDeceleration, true, {kBrakesTab, 0, "lblBremsstaerke", "Bremsstärke", 53, "txtBremsstaerke", "lblBremsstaerkeInfo", "(0.1 bis 10.0)", 54}},
    {&Car::BrakeBias, true, {kBrakesTab, 1, "lblBrakeBias", "Brake Bias", 55, "txtBrakeBias", "lblBrakeBiasInfo", "(0.0 bis 1.0)", 56}},
    {&Car::ABS, true, {kBrakesTab, 2, "lblABS", "ABS", 57, "chkABS", "", "", kNoLang}},
    {&Car::SteeringLock, true, {kSuspensionTab, 0, "lblRadeinschlag", "Radeinschlag", 58, "txtRadeinschlag", "lblRadeinschlagInfo", "(10.0 bis 40.0)", 59}},
    {&Car::SuspensionForceLevel, true, {kSuspensionTab, 1, "lblKraftlevel", "Kraftlevel", 65, "txtKraftlevel", "lblKraftlevelInfo", "(>= 0.0)", 66}},
    {&Car::SuspensionDampingLevel, true, {kSuspensionTab, 2, "lblDLevel", "Dämpfungslevel", 67, "txtDLevel", "lblDLevelInfo", "(>= 0.0)", 68}},
    {&Car::suspension_upper_limit, true, {kSuspensionTab, 3, "lblOLimit", "Oberes Limit", 69, "txtOLimit", "lblOLimitInfo", "(-1.0 bis 1.0)", 70}},
    {&Car::suspension_lower_limit, true, {kSuspensionTab, 4, "lblULimit", "Unteres Limit", 71, "txtULimit", "lblULimitInfo", "(-1.0 bis 1.0)", 72}},
    {&Car::SuspensionBias, true, {kSuspensionTab, 5, "lblBias", "Bias between F/R", 73, "txtBias", "lblBiasInfo", "(-1.0 bis 1.0)", 74}},
    {&Car::SuspensionAntiDive, false, {kSuspensionTab, 6, "lblDive", "Anti-Tauch Multipl", 178, "txtDive", "lblDiveInfo", "(-1.0 bis 1.0)", 179}},
    {&Car::SeatOffset, true, {kGeneralTab, 2, "lblPedSeat", "Ped Seat Offset", 75, "txtPedSeat", "lblPedSeatInfo", "(>= 0.0)", 76}},
    {&Car::CollisionDamageMultiplier, true, {kGeneralTab, 3, "lblKoll", "Koll.-Schaden-Multipl.", 77, "txtKoll", "lblKollInfo", "(0.2 bis 5.0)", 78}},
    {&Car::MonetaryValue, true, {kGeneralTab, 4, "lblPreis", "Geldwert/Preis", 79, "txtPreis", "lblPreisInfo", "(1 bis 100000)", 80}},
    {&Car::FrontLights, true, {kGeneralTab, 5, "lblFrontLichter", "Vorderlichter", 81, "cmbFrontLichter", "", "", kNoLang}},
    {&Car::RearLights, true, {kGeneralTab, 6, "lblRearLichter", "Hinterlichter", 86, "cmbRearLichter", "", "", kNoLang}},
}};

inline const std::array<ExpectedField<IdeEntry>, 13> kExpectedDefinitionFields = {{
    {&IdeEntry::ID, true, {kReferencesTab, 0, "lblID", "ID", 125, "txtID", "lblIDInfo", "ID in der default.ide", 126}},
    {&IdeEntry::HandlingID, true, {kReferencesTab, 3, "lblHandlingID", "Handling-ID", 127, "txtHandlingID", "lblHandlingIDInfo", "Referenz zu handling.cfg", 128}},
    {&IdeEntry::ModelName, true, {kReferencesTab, 1, "lblModelName", "Model-Name", 129, "txtModelName", "lblModelNameInfo", "Referenz zum 3D-Modell", 130}},
    {&IdeEntry::TXDName, true, {kReferencesTab, 2, "lblTXDName", "TXD-Name", 131, "txtTXDName", "lblTXDNameInfo", "Referenz zur Textur", 132}},
    {&IdeEntry::GameName, true, {kReferencesTab, 4, "lblGameName", "Game-Name", 133, "txtGameName", "lblGameNameInfo", "Referenz zum Namen im Spiel", 134}},
    {&IdeEntry::Typ, true, {kPropertiesTab, 0, "lblTyp", "Typ", 135, "cmbTyp", "lblTypInfo", "Fahrzeugtyp", 136}},
    {&IdeEntry::Anim, true, {kPropertiesTab, 1, "lblAnim", "Anim", 180, "cmbAnim", "lblAnimInfo", "Animation", 181}},
    {&IdeEntry::Klasse, true, {kPropertiesTab, 2, "lblKlasse", "Klasse", 137, "cmbKlasse", "lblKlasseInfo", "Wer fährt dieses Fahrzeug", 138}},
    {&IdeEntry::Frequenz, true, {kPropertiesTab, 3, "lblFrequenz", "Frequenz", 139, "txtFrequenz", "lblFrequenzInfo", "Häufigkeit des Auftretens", 140}},
    {&IdeEntry::Level, true, {kPropertiesTab, 4, "lblLevel", "Level", 141, "txtLevel", "lblLevelInfo", "Unbekannt", 142}},
    {&IdeEntry::CompRules, true, {kPropertiesTab, 5, "lblCompRules", "Comprules", 143, "txtCompRules", "lblCompRulesInfo", "Unbekannt", 144}},
    {&IdeEntry::Extra1, true, {kPropertiesTab, 6, "lblExtra1", "Extra 1", 145, "txtExtra1", "lblExtra1Info", "Extra 1 Info", 146}},
    {&IdeEntry::Extra2, true, {kPropertiesTab, 7, "lblExtra2", "Extra 2", 148, "txtExtra2", "lblExtra2Info", "Extra 2 Info", 149}},
}};
// clang-format on

}  // namespace wheelwright::testing
