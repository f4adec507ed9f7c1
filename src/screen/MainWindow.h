// The main window: every control of the inventory under its own name.
#pragma once

#include "screen/Controls.h"
#include "screen/Desktop.h"
#include "screen/Lists.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace wheelwright {

// The pages of the three tab groups.
enum HandlingTab {
  kGeneralTab,
  kDimensionsTab,
  kDriveTab,
  kBrakesTab,
  kSuspensionTab,
  kFlagsTab,
  kPictureTab,
  kMiscTab
};
enum DefinitionTab { kReferencesTab, kPropertiesTab, kDefinitionPictureTab };
enum ColorTab { kPaletteTab, kPairsTab };

// The inner size of the two picture frames, in pixels at 96 dots per inch.
inline constexpr int kPictureFrameWidth = 420;
inline constexpr int kPictureFrameHeight = 300;

inline constexpr std::size_t kFlagCount = 28;

// What stands around the input of a field: a label in front of it, and a hint behind most.
struct FieldLabels {
  Label label;
  std::optional<Label> hint;
};

// An input with its labels, which are named as it is: txtID has lblID and lblIDInfo. A hint is in a
// language.
template <class Input>
struct Labelled : FieldLabels, Input {
  Labelled(Window& window, const std::string& name, Wording wording, Wording hintWording = {},
           const std::string& labelName = "")
      : FieldLabels{Label(window, labelName.empty() ? "lbl" + name.substr(3) : labelName, wording),
                    std::nullopt},
        Input(window, name) {
    if (hintWording.lang != kNoLang) hint.emplace(window, "lbl" + name.substr(3) + "Info", hintWording);
  }
};

using TextField = Labelled<TextBox>;
using PickField = Labelled<PickList>;
using TickField = Labelled<CheckBox>;

struct FrmMain : Window {
  FrmMain();

  // Left column
  Frame FrameSprache{*this, "FrameSprache", {"Sprache", 0}};
  PickList cmbSprache{*this, "cmbSprache"};
  Frame FrameAutos{*this, "FrameAutos", {"Autos", 1}};
  PickList cmbAutos{*this, "cmbAutos", Order::Sorted};
  Button cmdOpen{*this, "cmdOpen", {"Lade Datei", 8}};
  Button cmdSave{*this, "cmdSave", {"Speichern", 9}};
  Button cmdSaveAs{*this, "cmdSaveAs", {"Speichern unter...", 119}};
  Button cmdUndo{*this, "cmdUndo", {"Datei - Rückgängig", 97}};
  Button cmdBackup{*this, "cmdBackup", {"Erstelle Backup", 10}};

  // Main region: one tab group for each kind of file, all on one spot
  TabGroup SSTab1{*this,
                  "SSTab1",
                  {{"Allgemein", 2},
                   {"Dimensionen", 3},
                   {"Leistung&&Antrieb", 4},
                   {"Bremsen", 5},
                   {"Aufhängung", 6},
                   {"Flags", 7},
                   {"Bild", 64},
                   {"Sonstiges", 62}}};
  TabGroup SSTab2{*this, "SSTab2", {{"ID&&Referenzen", 123}, {"Fahrzeug-Eigenschaften", 124}, {"Bild", 64}}};
  TabGroup SSTab3{*this, "SSTab3", {{"Farbentabelle", 155}, {"Autotabelle", 156}}};

  // Bottom row
  Button cmdHelp{*this, "cmdHelp", {"Hilfe", 120}};
  Button cmdInfo{*this, "cmdInfo", {"Info"}};
  Button cmdEnde{*this, "cmdEnde", {"Beenden", 11}};

  // SSTab1: General
  TextField txtAutoname{*this, "txtAutoname", {"Autoname", 15}, {"(Maximal 14 Buchstaben)", 16}};
  TextField txtGewicht{*this, "txtGewicht", {"Gewicht (kg)", 17}, {"(1.0 bis 50000.0)", 18}};
  TextField txtPedSeat{*this, "txtPedSeat", {"Ped Seat Offset", 75}, {"(>= 0.0)", 76}};
  TextField txtKoll{*this, "txtKoll", {"Koll.-Schaden-Multipl.", 77}, {"(0.2 bis 5.0)", 78}};
  TextField txtPreis{*this, "txtPreis", {"Geldwert/Preis", 79}, {"(1 bis 100000)", 80}};
  PickField cmbFrontLichter{*this, "cmbFrontLichter", {"Vorderlichter", 81}};
  PickField cmbRearLichter{*this, "cmbRearLichter", {"Hinterlichter", 86}};

  // SSTab1: Dimensions
  TextField txtBreite{*this, "txtBreite", {"Breite (m)", 19}, {"(0.0 > x > 20.0)", 20}};
  TextField txtHoehe{*this, "txtHoehe", {"Höhe (m)", 21}, {"(0.0 > x > 20.0)", 22}};
  TextField txtLaenge{*this, "txtLaenge", {"Länge (m)", 23}, {"(0.0 > x > 20.0)", 24}};
  TextField txtMassenmittelpX{
      *this, "txtMassenmittelpX", {"Massenmittelp. X", 25}, {"(-10.0 > x > 10.0)", 26}};
  TextField txtMassenmittelpY{
      *this, "txtMassenmittelpY", {"Massenmittelp. Y", 27}, {"(-10.0 > x > 10.0)", 28}};
  TextField txtMassenmittelpZ{
      *this, "txtMassenmittelpZ", {"Massenmittelp. Z", 29}, {"(-10.0 > x > 10.0)", 30}};
  TextField txtSubMerged{*this, "txtSubMerged", {"Versinkt (%)", 31}, {"im Wasser (10 to 120)", 32}};

  // SSTab1: Power and drive
  TextField txtTractionMulti{*this, "txtTractionMulti", {"Zugkraft - Multipl.", 33}, {"(0.5 bis 2.0)", 34}};
  TextField txtTractionLoss{*this, "txtTractionLoss", {"Zugkraft - Verlust", 35}, {"(0.0 > x > 1.0)", 36}};
  TextField txtTractionBias{*this, "txtTractionBias", {"Zugkraft - Vorsp.", 37}, {"(0.0 > x > 1.0)", 38}};
  TextField txtGaenge{*this, "txtGaenge", {"Anzahl Gänge", 39}, {"(1 bis 5)", 40}};
  TextField txtGeschwindigkeit{*this, "txtGeschwindigkeit", {"Geschw. (km/h)", 41}, {"(5.0 bis 150.0)", 42}};
  TextField txtBeschleunigung{*this, "txtBeschleunigung", {"Beschl. (m/s^2)", 43}, {"(0.1 bis 10.0)", 44}};
  PickField cmbAntrieb{*this, "cmbAntrieb", {"Antrieb", 45}};
  PickField cmbMotor{*this, "cmbMotor", {"Motor-Typ", 49}, {}, "lblMotorTyp"};

  // SSTab1: Brakes
  TextField txtBremsstaerke{*this, "txtBremsstaerke", {"Bremsstärke", 53}, {"(0.1 bis 10.0)", 54}};
  TextField txtBrakeBias{*this, "txtBrakeBias", {"Brake Bias", 55}, {"(0.0 bis 1.0)", 56}};
  TickField chkABS{*this, "chkABS", {"ABS", 57}};

  // SSTab1: Suspension
  TextField txtRadeinschlag{*this, "txtRadeinschlag", {"Radeinschlag", 58}, {"(10.0 bis 40.0)", 59}};
  TextField txtKraftlevel{*this, "txtKraftlevel", {"Kraftlevel", 65}, {"(>= 0.0)", 66}};
  TextField txtDLevel{*this, "txtDLevel", {"Dämpfungslevel", 67}, {"(>= 0.0)", 68}};
  TextField txtOLimit{*this, "txtOLimit", {"Oberes Limit", 69}, {"(-1.0 bis 1.0)", 70}};
  TextField txtULimit{*this, "txtULimit", {"Unteres Limit", 71}, {"(-1.0 bis 1.0)", 72}};
  TextField txtBias{*this, "txtBias", {"Bias between F/R", 73}, {"(-1.0 bis 1.0)", 74}};
  TextField txtDive{*this, "txtDive", {"Anti-Tauch Multipl", 178}, {"(-1.0 bis 1.0)", 179}};

  // SSTab1: Flags, chkFlag1 to chkFlag28
  std::array<CheckBox, kFlagCount> chkFlag;

  // SSTab1: Picture
  Frame picFrame{*this, "picFrame"};
  Picture picCar{*this, "picCar"};

  // SSTab1: Misc
  Button cmdNewCar{*this, "cmdNewCar", {"Neues Auto hinzufügen", 93}};
  Button cmdDeleteCar{*this, "cmdDeleteCar", {"Aktuelles Auto löschen", 94}};
  Button cmdImportCar{*this, "cmdImportCar", {"Import Autos", 95}};
  Button cmdExportCar{*this, "cmdExportCar", {"Export Autos...", 96}};
  Frame frameAuthor{*this, "frameAuthor", {"Autor", 100}};
  TextBox txtAuthor{*this, "txtAuthor"};
  Frame frameDate{*this, "frameDate", {"Datum", 101}};
  TextBox txtDate{*this, "txtDate"};

  // SSTab2: IDs and references
  TextField txtID{*this, "txtID", {"ID", 125}, {"ID in der default.ide", 126}};
  TextField txtModelName{*this, "txtModelName", {"Model-Name", 129}, {"Referenz zum 3D-Modell", 130}};
  TextField txtTXDName{*this, "txtTXDName", {"TXD-Name", 131}, {"Referenz zur Textur", 132}};
  TextField txtHandlingID{*this, "txtHandlingID", {"Handling-ID", 127}, {"Referenz zu handling.cfg", 128}};
  TextField txtGameName{*this, "txtGameName", {"Game-Name", 133}, {"Referenz zum Namen im Spiel", 134}};

  // SSTab2: Vehicle properties
  PickField cmbTyp{*this, "cmbTyp", {"Typ", 135}, {"Fahrzeugtyp", 136}};
  PickField cmbAnim{*this, "cmbAnim", {"Anim", 180}, {"Animation", 181}};
  PickField cmbKlasse{*this, "cmbKlasse", {"Klasse", 137}, {"Wer fährt dieses Fahrzeug", 138}};
  TextField txtFrequenz{*this, "txtFrequenz", {"Frequenz", 139}, {"Häufigkeit des Auftretens", 140}};
  TextField txtLevel{*this, "txtLevel", {"Level", 141}, {"Unbekannt", 142}};
  TextField txtCompRules{*this, "txtCompRules", {"Comprules", 143}, {"Unbekannt", 144}};
  TextField txtExtra1{*this, "txtExtra1", {"Extra 1", 145}};
  PickList cmbExtra1{*this, "cmbExtra1"};
  Label& lblExtra1Info = txtExtra1.hint.emplace(*this, "lblExtra1Info", Wording{"Extra 1 Info", 146});
  TextField txtExtra2{*this, "txtExtra2", {"Extra 2", 148}, {"Extra 2 Info", 149}};

  // SSTab2: Picture
  Frame picFrame2{*this, "picFrame2"};
  Picture picCar2{*this, "picCar2"};

  // SSTab3: Palette
  ListBox lstColors{*this, "lstColors"};
  Button cmdNewColor{*this, "cmdNewColor", {"Farbe hinzufügen", 157}};
  Button cmdDeleteColor{*this, "cmdDeleteColor", {"Farbe löschen", 158}};
  Label lblColorName{*this, "lblColorName", {"Name", 159}};
  TextBox txtColorName{*this, "txtColorName"};
  Label lblRot{*this, "lblRot", {"Rot", 160}};
  ScrollBar HScroll1{*this, "HScroll1"};
  Label lblRotWert{*this, "lblRotWert", {"0"}};
  Label lblGrün{*this, "lblGrün", {"Grün", 161}};
  ScrollBar HScroll2{*this, "HScroll2"};
  Label lblGrünWert{*this, "lblGrünWert", {"0"}};
  Label lblBlau{*this, "lblBlau", {"Blau", 162}};
  ScrollBar HScroll3{*this, "HScroll3"};
  Label lblBlauWert{*this, "lblBlauWert", {"0"}};
  Swatch picFarbe{*this, "picFarbe"};

  // SSTab3: Colour pairs of the vehicles
  Frame frameColors{*this, "frameColors", {"Autofarben", 167}};
  ListBox lstCarColors{*this, "lstCarColors"};
  Button cmdRemColor{*this, "cmdRemColor", {"Entfernen", 168}};
  Frame frameAddColors{*this, "frameAddColors", {"Farbe hinzufügen", 163}};
  Label lblColor1{*this, "lblColor1", {"Farbe 1", 164}};
  PickList cmbColor1{*this, "cmbColor1"};
  Swatch picColor1{*this, "picColor1"};
  Label lblColor2{*this, "lblColor2", {"Farbe 2", 165}};
  PickList cmbColor2{*this, "cmbColor2"};
  Swatch picColor2{*this, "picColor2"};
  Button cmdAddColor{*this, "cmdAddColor", {"Hinzufügen", 166}};

  // The hidden common dialog of open, save as and import.
  FileDialog CmD1;
};

}  // namespace wheelwright
