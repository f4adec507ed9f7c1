#include "screen/Fields.h"

namespace wheelwright {
namespace {

using M = FrmMain;

constexpr std::array kDrives = {"Vorderradantrieb", "Hinterradantrieb", "4x4 Antrieb"};
constexpr std::array kEngines = {"Benzin", "Diesel", "Elektro"};
constexpr std::array kLights = {"Lang", "Klein", "Gross", "Lang/Gross"};

}  // namespace

// clang-format off
const std::array<FieldRow<Car>, 32> kHandlingFields = {{
    {.value = &Car::CarName, .input = &M::txtAutoname, .tab = kGeneralTab, .tabRow = 0},
    {.value = &Car::Mass, .input = &M::txtGewicht, .tab = kGeneralTab, .tabRow = 1},
    {.value = &Car::DimensionX, .input = &M::txtBreite, .tab = kDimensionsTab, .tabRow = 0},
    {.value = &Car::DimensionY, .input = &M::txtHoehe, .tab = kDimensionsTab, .tabRow = 1},
    {.value = &Car::DimensionZ, .input = &M::txtLaenge, .tab = kDimensionsTab, .tabRow = 2},
    {.value = &Car::CenterOfMassX, .input = &M::txtMassenmittelpX, .tab = kDimensionsTab, .tabRow = 3},
    {.value = &Car::CenterOfMassY, .input = &M::txtMassenmittelpY, .tab = kDimensionsTab, .tabRow = 4},
    {.value = &Car::CenterOfMassZ, .input = &M::txtMassenmittelpZ, .tab = kDimensionsTab, .tabRow = 5},
    {.value = &Car::PercentSubmerged, .input = &M::txtSubMerged, .tab = kDimensionsTab, .tabRow = 6},
    {.value = &Car::TractionMultiplier, .input = &M::txtTractionMulti, .tab = kDriveTab, .tabRow = 0},
    {.value = &Car::TractionLoss, .input = &M::txtTractionLoss, .tab = kDriveTab, .tabRow = 1},
    {.value = &Car::TractionBias, .input = &M::txtTractionBias, .tab = kDriveTab, .tabRow = 2},
    {.value = &Car::GearCount, .input = &M::txtGaenge, .tab = kDriveTab, .tabRow = 3},
    {.value = &Car::MaxVelocity, .input = &M::txtGeschwindigkeit, .tab = kDriveTab, .tabRow = 4},
    {.value = &Car::EngineAcceleration, .input = &M::txtBeschleunigung, .tab = kDriveTab, .tabRow = 5},
    {.value = &Car::DriveType, .input = &M::cmbAntrieb, .tab = kDriveTab, .tabRow = 6, .entries = {kDrives, 46, "FR4"}},
    {.value = &Car::EngineType, .input = &M::cmbMotor, .tab = kDriveTab, .tabRow = 7, .entries = {kEngines, 50, "PDE"}},
    {.value = &Car::BrakeDeceleration, .input = &M::txtBremsstaerke, .tab = kBrakesTab, .tabRow = 0},
    {.value = &Car::BrakeBias, .input = &M::txtBrakeBias, .tab = kBrakesTab, .tabRow = 1},
    {.value = &Car::ABS, .input = &M::chkABS, .tab = kBrakesTab, .tabRow = 2},
    {.value = &Car::SteeringLock, .input = &M::txtRadeinschlag, .tab = kSuspensionTab, .tabRow = 0},
    {.value = &Car::SuspensionForceLevel, .input = &M::txtKraftlevel, .tab = kSuspensionTab, .tabRow = 1},
    {.value = &Car::SuspensionDampingLevel, .input = &M::txtDLevel, .tab = kSuspensionTab, .tabRow = 2},
    {.value = &Car::suspension_upper_limit, .input = &M::txtOLimit, .tab = kSuspensionTab, .tabRow = 3},
    {.value = &Car::suspension_lower_limit, .input = &M::txtULimit, .tab = kSuspensionTab, .tabRow = 4},
    {.value = &Car::SuspensionBias, .input = &M::txtBias, .tab = kSuspensionTab, .tabRow = 5},
    {.value = &Car::SuspensionAntiDive, .input = &M::txtDive, .tab = kSuspensionTab, .tabRow = 6,
     .isNamedInProblems = false},
    {.value = &Car::SeatOffset, .input = &M::txtPedSeat, .tab = kGeneralTab, .tabRow = 2},
    {.value = &Car::CollisionDamageMultiplier, .input = &M::txtKoll, .tab = kGeneralTab, .tabRow = 3},
    {.value = &Car::MonetaryValue, .input = &M::txtPreis, .tab = kGeneralTab, .tabRow = 4},
    {.value = &Car::FrontLights, .input = &M::cmbFrontLichter, .tab = kGeneralTab, .tabRow = 5,
     .entries = {kLights, 82, "0123"}},
    {.value = &Car::RearLights, .input = &M::cmbRearLichter, .tab = kGeneralTab, .tabRow = 6,
     .entries = {kLights, 87, "0123"}},
}};

const std::array<FieldRow<IdeEntry>, 13> kDefinitionFields = {{
    {.value = &IdeEntry::ID, .input = &M::txtID, .tab = kReferencesTab, .tabRow = 0},
    {.value = &IdeEntry::HandlingID, .input = &M::txtHandlingID, .tab = kReferencesTab, .tabRow = 3},
    {.value = &IdeEntry::ModelName, .input = &M::txtModelName, .tab = kReferencesTab, .tabRow = 1},
    {.value = &IdeEntry::TXDName, .input = &M::txtTXDName, .tab = kReferencesTab, .tabRow = 2},
    {.value = &IdeEntry::GameName, .input = &M::txtGameName, .tab = kReferencesTab, .tabRow = 4},
    {.value = &IdeEntry::Typ, .input = &M::cmbTyp, .tab = kPropertiesTab, .tabRow = 0, .entries = {kTypes}},
    {.value = &IdeEntry::Anim, .input = &M::cmbAnim, .tab = kPropertiesTab, .tabRow = 1, .entries = {kAnimations}},
    {.value = &IdeEntry::Klasse, .input = &M::cmbKlasse, .tab = kPropertiesTab, .tabRow = 2,
     .entries = {kClasses}},
    {.value = &IdeEntry::Frequenz, .input = &M::txtFrequenz, .tab = kPropertiesTab, .tabRow = 3},
    {.value = &IdeEntry::Level, .input = &M::txtLevel, .tab = kPropertiesTab, .tabRow = 4},
    {.value = &IdeEntry::CompRules, .input = &M::txtCompRules, .tab = kPropertiesTab, .tabRow = 5},
    {.value = &IdeEntry::Extra1, .input = &M::txtExtra1, .tab = kPropertiesTab, .tabRow = 6},
    {.value = &IdeEntry::Extra2, .input = &M::txtExtra2, .tab = kPropertiesTab, .tabRow = 7},
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

}  // namespace wheelwright
