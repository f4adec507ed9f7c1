#include "screen/Captions.h"

namespace wheelwright {

std::vector<CaptionRow> CaptionsOf(FrmMain& m) {
  return {
      {m.FrameSprache, "Sprache", 0},
      {m.FrameAutos, "Autos", 1},
      {m.cmdOpen, "Lade Datei", 8},
      {m.cmdSave, "Speichern", 9},
      {m.cmdSaveAs, "Speichern unter...", 119},
      {m.cmdUndo, "Datei - Rückgängig", 97},
      {m.cmdBackup, "Erstelle Backup", 10},
      {m.cmdHelp, "Hilfe", 120},
      {m.cmdInfo, "Info", kNoLang},
      {m.cmdEnde, "Beenden", 11},
      {m.cmdNewCar, "Neues Auto hinzufügen", 93},
      {m.cmdDeleteCar, "Aktuelles Auto löschen", 94},
      {m.cmdImportCar, "Import Autos", 95},
      {m.cmdExportCar, "Export Autos...", 96},
      {m.frameAuthor, "Autor", 100},
      {m.frameDate, "Datum", 101},
      {m.cmdNewColor, "Farbe hinzufügen", 157},
      {m.cmdDeleteColor, "Farbe löschen", 158},
      {m.lblColorName, "Name", 159},
      {m.lblRot, "Rot", 160},
      {m.lblRotWert, "0", kNoLang},
      {m.lblGrün, "Grün", 161},
      {m.lblGrünWert, "0", kNoLang},
      {m.lblBlau, "Blau", 162},
      {m.lblBlauWert, "0", kNoLang},
      {m.frameColors, "Autofarben", 167},
      {m.cmdRemColor, "Entfernen", 168},
      {m.frameAddColors, "Farbe hinzufügen", 163},
      {m.lblColor1, "Farbe 1", 164},
      {m.lblColor2, "Farbe 2", 165},
      {m.cmdAddColor, "Hinzufügen", 166},
  };
}

std::vector<CaptionRow> CaptionsOf(FrmError& error) {
  return {{error.cmdClose, "Schliessen", 106}};
}

std::vector<CaptionRow> CaptionsOf(FrmExport& e) {
  return {
      {e.lblExportCar, "Verfügbare Autos", 110},
      {e.lblExport, "Exportieren", 111},
      {e.cmdAdd, ">", kNoLang},
      {e.cmdDel, "<", kNoLang},
      {e.cmdAddAll, ">>", kNoLang},
      {e.cmdDelAll, "<<", kNoLang},
      {e.cmdExport, "Export...", 112},
      {e.cmdClose, "Schliessen", 106},
      {e.Spez, "Spez", kNoLang},
  };
}

void ApplyCaptions(const std::vector<CaptionRow>& rows, std::span<const std::string> lang) {
  for (const CaptionRow& row : rows) {
    if (row.lang != kNoLang) row.control.SetCaption(lang[static_cast<std::size_t>(row.lang)]);
  }
}

std::vector<TabCaptionRow> TabCaptionsOf(FrmMain& m) {
  return {
      {m.SSTab1, kGeneralTab, "Allgemein", 2},
      {m.SSTab1, kDimensionsTab, "Dimensionen", 3},
      {m.SSTab1, kDriveTab, "Leistung&&Antrieb", 4},
      {m.SSTab1, kBrakesTab, "Bremsen", 5},
      {m.SSTab1, kSuspensionTab, "Aufhängung", 6},
      {m.SSTab1, kFlagsTab, "Flags", 7},
      {m.SSTab1, kPictureTab, "Bild", 64},
      {m.SSTab1, kMiscTab, "Sonstiges", 62},
      {m.SSTab2, kReferencesTab, "ID&&Referenzen", 123},
      {m.SSTab2, kPropertiesTab, "Fahrzeug-Eigenschaften", 124},
      {m.SSTab2, kDefinitionPictureTab, "Bild", 64},
      {m.SSTab3, kPaletteTab, "Farbentabelle", 155},
      {m.SSTab3, kPairsTab, "Autotabelle", 156},
  };
}

std::vector<ColumnCaptionRow> ColumnCaptions() {
  return {{0, "Auto", 107}, {1, "Parameter", 108}, {2, "Error", 109}};
}

}  // namespace wheelwright
