// What the windows must hold beside the rows of their data fields.
#pragma once

#include "screen/Fields.h"
#include "screen/MainWindow.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace wheelwright::testing {

// A control that belongs to no data field. Captions are UTF-8; null where a control has none.
struct ExpectedControl {
  const char* name;
  const char* kind;
  const char* container;
  int page;
  const char* caption;
  int lang;
};

// clang-format off
inline constexpr auto kMainControls = std::to_array<ExpectedControl>({
    {"FrameSprache", "frame", "", 0, "Sprache", 0},
    {"cmbSprache", "pick list", "FrameSprache", 0, nullptr, kNoLang},
    {"FrameAutos", "frame", "", 0, "Autos", 1},
    {"cmbAutos", "pick list", "FrameAutos", 0, nullptr, kNoLang},
    {"cmdOpen", "button", "", 0, "Lade Datei", 8},
    {"cmdSave", "button", "", 0, "Speichern", 9},
    {"cmdSaveAs", "button", "", 0, "Speichern unter...", 119},
    {"cmdUndo", "button", "", 0, "Datei - Rückgängig", 97},
    {"cmdBackup", "button", "", 0, "Erstelle Backup", 10},
    {"SSTab1", "tab group", "", 0, nullptr, kNoLang},
    {"SSTab2", "tab group", "", 0, nullptr, kNoLang},
    {"SSTab3", "tab group", "", 0, nullptr, kNoLang},
    {"cmdHelp", "button", "", 0, "Hilfe", 120},
    {"cmdInfo", "button", "", 0, "Info", kNoLang},
    {"cmdEnde", "button", "", 0, "Beenden", 11},
    {"picFrame", "frame", "SSTab1", kPictureTab, nullptr, kNoLang},
    {"picCar", "picture", "picFrame", 0, nullptr, kNoLang},
    {"cmdNewCar", "button", "SSTab1", kMiscTab, "Neues Auto hinzufügen", 93},
    {"cmdDeleteCar", "button", "SSTab1", kMiscTab, "Aktuelles Auto löschen", 94},
    {"cmdImportCar", "button", "SSTab1", kMiscTab, "Import Autos", 95},
    {"cmdExportCar", "button", "SSTab1", kMiscTab, "Export Autos...", 96},
    {"frameAuthor", "frame", "SSTab1", kMiscTab, "Autor", 100},
    {"txtAuthor", "text box", "frameAuthor", 0, nullptr, kNoLang},
    {"frameDate", "frame", "SSTab1", kMiscTab, "Datum", 101},
    {"txtDate", "text box", "frameDate", 0, nullptr, kNoLang},
    {"cmbExtra1", "pick list", "SSTab2", kPropertiesTab, nullptr, kNoLang},
    {"picFrame2", "frame", "SSTab2", kDefinitionPictureTab, nullptr, kNoLang},
    {"picCar2", "picture", "picFrame2", 0, nullptr, kNoLang},
    {"lstColors", "list box", "SSTab3", kPaletteTab, nullptr, kNoLang},
    {"cmdNewColor", "button", "SSTab3", kPaletteTab, "Farbe hinzufügen", 157},
    {"cmdDeleteColor", "button", "SSTab3", kPaletteTab, "Farbe löschen", 158},
    {"lblColorName", "label", "SSTab3", kPaletteTab, "Name", 159},
    {"txtColorName", "text box", "SSTab3", kPaletteTab, nullptr, kNoLang},
    {"lblRot", "label", "SSTab3", kPaletteTab, "Rot", 160},
    {"HScroll1", "scroll bar", "SSTab3", kPaletteTab, nullptr, kNoLang},
    {"lblRotWert", "label", "SSTab3", kPaletteTab, "0", kNoLang},
    {"lblGrün", "label", "SSTab3", kPaletteTab, "Grün", 161},
    {"HScroll2", "scroll bar", "SSTab3", kPaletteTab, nullptr, kNoLang},
    {"lblGrünWert", "label", "SSTab3", kPaletteTab, "0", kNoLang},
    {"lblBlau", "label", "SSTab3", kPaletteTab, "Blau", 162},
    {"HScroll3", "scroll bar", "SSTab3", kPaletteTab, nullptr, kNoLang},
    {"lblBlauWert", "label", "SSTab3", kPaletteTab, "0", kNoLang},
    {"picFarbe", "swatch", "SSTab3", kPaletteTab, nullptr, kNoLang},
    {"frameColors", "frame", "SSTab3", kPairsTab, "Autofarben", 167},
    {"lstCarColors", "list box", "frameColors", 0, nullptr, kNoLang},
    {"cmdRemColor", "button", "frameColors", 0, "Entfernen", 168},
    {"frameAddColors", "frame", "SSTab3", kPairsTab, "Farbe hinzufügen", 163},
    {"lblColor1", "label", "frameAddColors", 0, "Farbe 1", 164},
    {"cmbColor1", "pick list", "frameAddColors", 0, nullptr, kNoLang},
    {"picColor1", "swatch", "frameAddColors", 0, nullptr, kNoLang},
    {"lblColor2", "label", "frameAddColors", 0, "Farbe 2", 165},
    {"cmbColor2", "pick list", "frameAddColors", 0, nullptr, kNoLang},
    {"picColor2", "swatch", "frameAddColors", 0, nullptr, kNoLang},
    {"cmdAddColor", "button", "frameAddColors", 0, "Hinzufügen", 166},
});

inline constexpr auto kExportControls = std::to_array<ExpectedControl>({
    {"lblExportCar", "label", "", 0, "Verfügbare Autos", 110},
    {"lblExport", "label", "", 0, "Exportieren", 111},
    {"lst1", "mark list", "", 0, nullptr, kNoLang},
    {"lst2", "mark list", "", 0, nullptr, kNoLang},
    {"cmdAdd", "button", "", 0, ">", kNoLang},
    {"cmdDel", "button", "", 0, "<", kNoLang},
    {"cmdAddAll", "button", "", 0, ">>", kNoLang},
    {"cmdDelAll", "button", "", 0, "<<", kNoLang},
    {"cmdExport", "button", "", 0, "Export...", 112},
    {"cmdClose", "button", "", 0, "Schliessen", 106},
    {"Spez", "button", "", 0, "Spez", kNoLang},
});

inline constexpr auto kErrorControls = std::to_array<ExpectedControl>({
    {"lstErrors", "report list", "", 0, nullptr, kNoLang},
    {"cmdClose", "button", "", 0, "Schliessen", 106},
});

// The captions of chkFlag1 to chkFlag28.
inline constexpr std::array<const char*, 28> kFlags = {
    "1G_BOOST", "2G_BOOST", "REV_BONNET", "HANGING_BOOT",
    "NO_DOORS", "IS_VAN", "IS_BUS", "IS_LOW",
    "DBL_EXHAUST", "TAILGATE_BOOT", "NOSWING_BOOT", "NONPLAYER_STABILISER",
    "NEUTRALHANDLING", "HAS_NO_ROOF", "IS_BIG", "HALOGEN_LIGHTS",
    "IS_BIKE", "IS_HELI", "IS_PLANE", "IS_BOAT",
    "NO_EXHAUST", "REARWHEEL_1ST", "HANDBRAKE_TYRE", "SIT_IN_BOAT",
    "FAT_REARW", "NARROW_FRONTW", "GOOD_INSAND", "Undefined",
};

// The lists that are built with entries.
inline const std::map<std::string, std::vector<std::string>> kEntries = {
    {"cmbAntrieb", {"Vorderradantrieb", "Hinterradantrieb", "4x4 Antrieb"}},
    {"cmbMotor", {"Benzin", "Diesel", "Elektro"}},
    {"cmbFrontLichter", {"Lang", "Klein", "Gross", "Lang/Gross"}},
    {"cmbRearLichter", {"Lang", "Klein", "Gross", "Lang/Gross"}},
    {"cmbTyp", {"car", "boat", "bike", "heli", "plane"}},
    {"cmbAnim", {"null", "van", "biked", "bikeh", "bikes", "bikev", "coach"}},
    {"cmbKlasse", {"normal", "poorfamily", "richfamily", "leisureboat", "ignore", "big", "executive", "worker", "taxi", "workerboat", "motorbike", "moped"}},
    {"cmbExtra1", {"Rim", "Offroad", "Truck", "Sport", "Saloon", "Lightvan", "Classic", "Alloy", "Lighttruck", "Smallcar"}},
};
// clang-format on

}  // namespace wheelwright::testing
