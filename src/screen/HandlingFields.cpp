#include "screen/HandlingFields.h"

#include <algorithm>

namespace wheelwright {
namespace {

constexpr bool kNamed = true;
constexpr bool kNotNamed = false;

}  // namespace

// clang-format off
const std::array<HandlingField, kHandlingFieldCount> kHandlingFields = {{
    {"CarName", &Car::CarName, kNamed, 1, kGeneralTab, 0, &FrmMain::lblAutoname, "Autoname", 15, &FrmMain::txtAutoname, nullptr, nullptr, &FrmMain::lblAutonameInfo, "(Maximal 14 Buchstaben)", 16},
    {"Mass", &Car::Mass, kNamed, 2, kGeneralTab, 1, &FrmMain::lblGewicht, "Gewicht (kg)", 17, &FrmMain::txtGewicht, nullptr, nullptr, &FrmMain::lblGewichtInfo, "(1.0 bis 50000.0)", 18},
    {"DimensionX", &Car::DimensionX, kNamed, 3, kDimensionsTab, 0, &FrmMain::lblBreite, "Breite (m)", 19, &FrmMain::txtBreite, nullptr, nullptr, &FrmMain::lblBreiteInfo, "(0.0 > x > 20.0)", 20},
    {"DimensionY", &Car::DimensionY, kNamed, 4, kDimensionsTab, 1, &FrmMain::lblHoehe, "Höhe (m)", 21, &FrmMain::txtHoehe, nullptr, nullptr, &FrmMain::lblHoeheInfo, "(0.0 > x > 20.0)", 22},
    {"DimensionZ", &Car::DimensionZ, kNamed, 5, kDimensionsTab, 2, &FrmMain::lblLaenge, "Länge (m)", 23, &FrmMain::txtLaenge, nullptr, nullptr, &FrmMain::lblLaengeInfo, "(0.0 > x > 20.0)", 24},
    {"CenterOfMassX", &Car::CenterOfMassX, kNamed, 6, kDimensionsTab, 3, &FrmMain::lblMassenmittelpX, "Massenmittelp. X", 25, &FrmMain::txtMassenmittelpX, nullptr, nullptr, &FrmMain::lblMassenmittelpXInfo, "(-10.0 > x > 10.0)", 26},
    {"CenterOfMassY", &Car::CenterOfMassY, kNamed, 7, kDimensionsTab, 4, &FrmMain::lblMassenmittelpY, "Massenmittelp. Y", 27, &FrmMain::txtMassenmittelpY, nullptr, nullptr, &FrmMain::lblMassenmittelpYInfo, "(-10.0 > x > 10.0)", 28},
    {"CenterOfMassZ", &Car::CenterOfMassZ, kNamed, 8, kDimensionsTab, 5, &FrmMain::lblMassenmittelpZ, "Massenmittelp. Z", 29, &FrmMain::txtMassenmittelpZ, nullptr, nullptr, &FrmMain::lblMassenmittelpZInfo, "(-10.0 > x > 10.0)", 30},
    {"PercentSubmerged", &Car::PercentSubmerged, kNamed, 9, kDimensionsTab, 6, &FrmMain::lblSubMerged, "Versinkt (%)", 31, &FrmMain::txtSubMerged, nullptr, nullptr, &FrmMain::lblSubMergedInfo, "im Wasser (10 to 120)", 32},
    {"TractionMultiplier", &Car::TractionMultiplier, kNamed, 10, kDriveTab, 0, &FrmMain::lblTractionMulti, "Zugkraft - Multipl.", 33, &FrmMain::txtTractionMulti, nullptr, nullptr, &FrmMain::lblTractionMultiInfo, "(0.5 bis 2.0)", 34},
    {"TractionLoss", &Car::TractionLoss, kNamed, 11, kDriveTab, 1, &FrmMain::lblTractionLoss, "Zugkraft - Verlust", 35, &FrmMain::txtTractionLoss, nullptr, nullptr, &FrmMain::lblTractionLossInfo, "(0.0 > x > 1.0)", 36},
    {"TractionBias", &Car::TractionBias, kNamed, 12, kDriveTab, 2, &FrmMain::lblTractionBias, "Zugkraft - Vorsp.", 37, &FrmMain::txtTractionBias, nullptr, nullptr, &FrmMain::lblTractionBiasInfo, "(0.0 > x > 1.0)", 38},
    {"GearCount", &Car::GearCount, kNamed, 14, kDriveTab, 3, &FrmMain::lblGaenge, "Anzahl Gänge", 39, &FrmMain::txtGaenge, nullptr, nullptr, &FrmMain::lblGaengeInfo, "(1 bis 5)", 40},
    {"MaxVelocity", &Car::MaxVelocity, kNamed, 15, kDriveTab, 4, &FrmMain::lblGeschwindigkeit, "Geschw. (km/h)", 41, &FrmMain::txtGeschwindigkeit, nullptr, nullptr, &FrmMain::lblGeschwindigkeitInfo, "(5.0 bis 150.0)", 42},
    {"EngineAcceleration", &Car::EngineAcceleration, kNamed, 16, kDriveTab, 5, &FrmMain::lblBeschleunigung, "Beschl. (m/s^2)", 43, &FrmMain::txtBeschleunigung, nullptr, nullptr, &FrmMain::lblBeschleunigungInfo, "(0.1 bis 10.0)", 44},
    {"DriveType", &Car::DriveType, kNotNamed, 17, kDriveTab, 6, &FrmMain::lblAntrieb, "Antrieb", 45, nullptr, &FrmMain::cmbAntrieb, nullptr, nullptr, "", kNoLang},
    {"EngineType", &Car::EngineType, kNamed, 18, kDriveTab, 7, &FrmMain::lblMotorTyp, "Motor-Typ", 49, nullptr, &FrmMain::cmbMotor, nullptr, nullptr, "", kNoLang},
    {"BrakeDeceleration", &Car::BrakeDeceleration, kNamed, 19, kBrakesTab, 0, &FrmMain::lblBremsstaerke, "Bremsstärke", 53, &FrmMain::txtBremsstaerke, nullptr, nullptr, &FrmMain::lblBremsstaerkeInfo, "(0.1 bis 10.0)", 54},
    {"BrakeBias", &Car::BrakeBias, kNamed, 20, kBrakesTab, 1, &FrmMain::lblBrakeBias, "Brake Bias", 55, &FrmMain::txtBrakeBias, nullptr, nullptr, &FrmMain::lblBrakeBiasInfo, "(0.0 bis 1.0)", 56},
    {"ABS", &Car::ABS, kNamed, 21, kBrakesTab, 2, &FrmMain::lblABS, "ABS", 57, nullptr, nullptr, &FrmMain::chkABS, nullptr, "", kNoLang},
    {"SteeringLock", &Car::SteeringLock, kNamed, 22, kSuspensionTab, 0, &FrmMain::lblRadeinschlag, "Radeinschlag", 58, &FrmMain::txtRadeinschlag, nullptr, nullptr, &FrmMain::lblRadeinschlagInfo, "(10.0 bis 40.0)", 59},
    {"SuspensionForceLevel", &Car::SuspensionForceLevel, kNamed, 23, kSuspensionTab, 1, &FrmMain::lblKraftlevel, "Kraftlevel", 65, &FrmMain::txtKraftlevel, nullptr, nullptr, &FrmMain::lblKraftlevelInfo, "(>= 0.0)", 66},
    {"SuspensionDampingLevel", &Car::SuspensionDampingLevel, kNamed, 24, kSuspensionTab, 2, &FrmMain::lblDLevel, "Dämpfungslevel", 67, &FrmMain::txtDLevel, nullptr, nullptr, &FrmMain::lblDLevelInfo, "(>= 0.0)", 68},
    {"SeatOffset", &Car::SeatOffset, kNamed, 29, kGeneralTab, 2, &FrmMain::lblPedSeat, "Ped Seat Offset", 75, &FrmMain::txtPedSeat, nullptr, nullptr, &FrmMain::lblPedSeatInfo, "(>= 0.0)", 76},
    {"CollisionDamageMultiplier", &Car::CollisionDamageMultiplier, kNamed, 30, kGeneralTab, 3, &FrmMain::lblKoll, "Koll.-Schaden-Multipl.", 77, &FrmMain::txtKoll, nullptr, nullptr, &FrmMain::lblKollInfo, "(0.2 bis 5.0)", 78},
    {"MonetaryValue", &Car::MonetaryValue, kNamed, 31, kGeneralTab, 4, &FrmMain::lblPreis, "Geldwert/Preis", 79, &FrmMain::txtPreis, nullptr, nullptr, &FrmMain::lblPreisInfo, "(1 bis 100000)", 80},
    {"suspension_upper_limit", &Car::suspension_upper_limit, kNamed, 25, kSuspensionTab, 3, &FrmMain::lblOLimit, "Oberes Limit", 69, &FrmMain::txtOLimit, nullptr, nullptr, &FrmMain::lblOLimitInfo, "(-1.0 bis 1.0)", 70},
    {"suspension_lower_limit", &Car::suspension_lower_limit, kNamed, 26, kSuspensionTab, 4, &FrmMain::lblULimit, "Unteres Limit", 71, &FrmMain::txtULimit, nullptr, nullptr, &FrmMain::lblULimitInfo, "(-1.0 bis 1.0)", 72},
    {"SuspensionBias", &Car::SuspensionBias, kNamed, 27, kSuspensionTab, 5, &FrmMain::lblBias, "Bias between F/R", 73, &FrmMain::txtBias, nullptr, nullptr, &FrmMain::lblBiasInfo, "(-1.0 bis 1.0)", 74},
    {"SuspensionAntiDive", &Car::SuspensionAntiDive, kNotNamed, 28, kSuspensionTab, 6, &FrmMain::lblDive, "Anti-Tauch Multipl", 178, &FrmMain::txtDive, nullptr, nullptr, &FrmMain::lblDiveInfo, "(-1.0 bis 1.0)", 179},
    {"ModelFlags", &Car::ModelFlags, kNotNamed, 34, kFlagsTab, kNoTabRow, nullptr, "", kNoLang, nullptr, nullptr, nullptr, nullptr, "", kNoLang},
    {"FrontLights", &Car::FrontLights, kNamed, 32, kGeneralTab, 5, &FrmMain::lblFrontLichter, "Vorderlichter", 81, nullptr, &FrmMain::cmbFrontLichter, nullptr, nullptr, "", kNoLang},
    {"RearLights", &Car::RearLights, kNamed, 33, kGeneralTab, 6, &FrmMain::lblRearLichter, "Hinterlichter", 86, nullptr, &FrmMain::cmbRearLichter, nullptr, nullptr, "", kNoLang},
}};

const std::array<CodeList, 4> kCodeLists = {{
    {&FrmMain::cmbAntrieb, &Car::DriveType, "FR4", {"Vorderradantrieb", "Hinterradantrieb", "4x4 Antrieb", nullptr}, 46},
    {&FrmMain::cmbMotor, &Car::EngineType, "PDE", {"Benzin", "Diesel", "Elektro", nullptr}, 50},
    {&FrmMain::cmbFrontLichter, &Car::FrontLights, "0123", {"Lang", "Klein", "Gross", "Lang/Gross"}, 82},
    {&FrmMain::cmbRearLichter, &Car::RearLights, "0123", {"Lang", "Klein", "Gross", "Lang/Gross"}, 87},
}};

const std::array<const char*, kFlagCount> kFlagCaptions = {
    "1G_BOOST", "2G_BOOST", "REV_BONNET", "HANGING_BOOT",
    "NO_DOORS", "IS_VAN", "IS_BUS", "IS_LOW",
    "DBL_EXHAUST", "TAILGATE_BOOT", "NOSWING_BOOT", "NONPLAYER_STABILISER",
    "NEUTRALHANDLING", "HAS_NO_ROOF", "IS_BIG", "HALOGEN_LIGHTS",
    "IS_BIKE", "IS_HELI", "IS_PLANE", "IS_BOAT",
    "NO_EXHAUST", "REARWHEEL_1ST", "HANDBRAKE_TYRE", "SIT_IN_BOAT",
    "FAT_REARW", "NARROW_FRONTW", "GOOD_INSAND", "Undefined",
};
// clang-format on

const std::array<const HandlingField*, kHandlingFieldCount>& HandlingFieldsByDisplay() {
  static const auto byDisplay = [] {
    std::array<const HandlingField*, kHandlingFieldCount> fields{};
    std::transform(kHandlingFields.begin(), kHandlingFields.end(), fields.begin(),
                   [](const HandlingField& field) { return &field; });
    std::sort(fields.begin(), fields.end(),
              [](const HandlingField* left, const HandlingField* right) {
                return left->displayOrder < right->displayOrder;
              });
    return fields;
  }();
  return byDisplay;
}

}  // namespace wheelwright
