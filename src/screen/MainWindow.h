// The main window: every control of the inventory under its own name.
#pragma once

#include "screen/Controls.h"
#include "screen/Desktop.h"
#include "screen/Lists.h"

#include <array>
#include <cstddef>

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

struct FrmMain : Window {
  FrmMain();

  // Left column
  Frame FrameSprache{*this, "FrameSprache"};
  PickList cmbSprache{*this, "cmbSprache"};
  Frame FrameAutos{*this, "FrameAutos"};
  PickList cmbAutos{*this, "cmbAutos", Order::Sorted};
  Button cmdOpen{*this, "cmdOpen"};
  Button cmdSave{*this, "cmdSave"};
  Button cmdSaveAs{*this, "cmdSaveAs"};
  Button cmdUndo{*this, "cmdUndo"};
  Button cmdBackup{*this, "cmdBackup"};

  // Main region: one tab group for each kind of file, all on one spot
  TabGroup SSTab1{*this, "SSTab1"};
  TabGroup SSTab2{*this, "SSTab2"};
  TabGroup SSTab3{*this, "SSTab3"};

  // Bottom row
  Button cmdHelp{*this, "cmdHelp"};
  Button cmdInfo{*this, "cmdInfo"};
  Button cmdEnde{*this, "cmdEnde"};

  // SSTab1: General
  Label lblAutoname{*this, "lblAutoname"};
  TextBox txtAutoname{*this, "txtAutoname"};
  Label lblAutonameInfo{*this, "lblAutonameInfo"};
  Label lblGewicht{*this, "lblGewicht"};
  TextBox txtGewicht{*this, "txtGewicht"};
  Label lblGewichtInfo{*this, "lblGewichtInfo"};
  Label lblPedSeat{*this, "lblPedSeat"};
  TextBox txtPedSeat{*this, "txtPedSeat"};
  Label lblPedSeatInfo{*this, "lblPedSeatInfo"};
  Label lblKoll{*this, "lblKoll"};
  TextBox txtKoll{*this, "txtKoll"};
  Label lblKollInfo{*this, "lblKollInfo"};
  Label lblPreis{*this, "lblPreis"};
  TextBox txtPreis{*this, "txtPreis"};
  Label lblPreisInfo{*this, "lblPreisInfo"};
  Label lblFrontLichter{*this, "lblFrontLichter"};
  PickList cmbFrontLichter{*this, "cmbFrontLichter"};
  Label lblRearLichter{*this, "lblRearLichter"};
  PickList cmbRearLichter{*this, "cmbRearLichter"};

  // SSTab1: Dimensions
  Label lblBreite{*this, "lblBreite"};
  TextBox txtBreite{*this, "txtBreite"};
  Label lblBreiteInfo{*this, "lblBreiteInfo"};
  Label lblHoehe{*this, "lblHoehe"};
  TextBox txtHoehe{*this, "txtHoehe"};
  Label lblHoeheInfo{*this, "lblHoeheInfo"};
  Label lblLaenge{*this, "lblLaenge"};
  TextBox txtLaenge{*this, "txtLaenge"};
  Label lblLaengeInfo{*this, "lblLaengeInfo"};
  Label lblMassenmittelpX{*this, "lblMassenmittelpX"};
  TextBox txtMassenmittelpX{*this, "txtMassenmittelpX"};
  Label lblMassenmittelpXInfo{*this, "lblMassenmittelpXInfo"};
  Label lblMassenmittelpY{*this, "lblMassenmittelpY"};
  TextBox txtMassenmittelpY{*this, "txtMassenmittelpY"};
  Label lblMassenmittelpYInfo{*this, "lblMassenmittelpYInfo"};
  Label lblMassenmittelpZ{*this, "lblMassenmittelpZ"};
  TextBox txtMassenmittelpZ{*this, "txtMassenmittelpZ"};
  Label lblMassenmittelpZInfo{*this, "lblMassenmittelpZInfo"};
  Label lblSubMerged{*this, "lblSubMerged"};
  TextBox txtSubMerged{*this, "txtSubMerged"};
  Label lblSubMergedInfo{*this, "lblSubMergedInfo"};

  // SSTab1: Power and drive
  Label lblTractionMulti{*this, "lblTractionMulti"};
  TextBox txtTractionMulti{*this, "txtTractionMulti"};
  Label lblTractionMultiInfo{*this, "lblTractionMultiInfo"};
  Label lblTractionLoss{*this, "lblTractionLoss"};
  TextBox txtTractionLoss{*this, "txtTractionLoss"};
  Label lblTractionLossInfo{*this, "lblTractionLossInfo"};
  Label lblTractionBias{*this, "lblTractionBias"};
  TextBox txtTractionBias{*this, "txtTractionBias"};
  Label lblTractionBiasInfo{*this, "lblTractionBiasInfo"};
  Label lblGaenge{*this, "lblGaenge"};
  TextBox txtGaenge{*this, "txtGaenge"};
  Label lblGaengeInfo{*this, "lblGaengeInfo"};
  Label lblGeschwindigkeit{*this, "lblGeschwindigkeit"};
  TextBox txtGeschwindigkeit{*this, "txtGeschwindigkeit"};
  Label lblGeschwindigkeitInfo{*this, "lblGeschwindigkeitInfo"};
  Label lblBeschleunigung{*this, "lblBeschleunigung"};
  TextBox txtBeschleunigung{*this, "txtBeschleunigung"};
  Label lblBeschleunigungInfo{*this, "lblBeschleunigungInfo"};
  Label lblAntrieb{*this, "lblAntrieb"};
  PickList cmbAntrieb{*this, "cmbAntrieb"};
  Label lblMotorTyp{*this, "lblMotorTyp"};
  PickList cmbMotor{*this, "cmbMotor"};

  // SSTab1: Brakes
  Label lblBremsstaerke{*this, "lblBremsstaerke"};
  TextBox txtBremsstaerke{*this, "txtBremsstaerke"};
  Label lblBremsstaerkeInfo{*this, "lblBremsstaerkeInfo"};
  Label lblBrakeBias{*this, "lblBrakeBias"};
  TextBox txtBrakeBias{*this, "txtBrakeBias"};
  Label lblBrakeBiasInfo{*this, "lblBrakeBiasInfo"};
  Label lblABS{*this, "lblABS"};
  CheckBox chkABS{*this, "chkABS"};

  // SSTab1: Suspension
  Label lblRadeinschlag{*this, "lblRadeinschlag"};
  TextBox txtRadeinschlag{*this, "txtRadeinschlag"};
  Label lblRadeinschlagInfo{*this, "lblRadeinschlagInfo"};
  Label lblKraftlevel{*this, "lblKraftlevel"};
  TextBox txtKraftlevel{*this, "txtKraftlevel"};
  Label lblKraftlevelInfo{*this, "lblKraftlevelInfo"};
  Label lblDLevel{*this, "lblDLevel"};
  TextBox txtDLevel{*this, "txtDLevel"};
  Label lblDLevelInfo{*this, "lblDLevelInfo"};
  Label lblOLimit{*this, "lblOLimit"};
  TextBox txtOLimit{*this, "txtOLimit"};
  Label lblOLimitInfo{*this, "lblOLimitInfo"};
  Label lblULimit{*this, "lblULimit"};
  TextBox txtULimit{*this, "txtULimit"};
  Label lblULimitInfo{*this, "lblULimitInfo"};
  Label lblBias{*this, "lblBias"};
  TextBox txtBias{*this, "txtBias"};
  Label lblBiasInfo{*this, "lblBiasInfo"};
  Label lblDive{*this, "lblDive"};
  TextBox txtDive{*this, "txtDive"};
  Label lblDiveInfo{*this, "lblDiveInfo"};

  // SSTab1: Flags, chkFlag1 to chkFlag28
  std::array<CheckBox, kFlagCount> chkFlag;

  // SSTab1: Picture
  Frame picFrame{*this, "picFrame"};
  Picture picCar{*this, "picCar"};

  // SSTab1: Misc
  Button cmdNewCar{*this, "cmdNewCar"};
  Button cmdDeleteCar{*this, "cmdDeleteCar"};
  Button cmdImportCar{*this, "cmdImportCar"};
  Button cmdExportCar{*this, "cmdExportCar"};
  Frame frameAuthor{*this, "frameAuthor"};
  TextBox txtAuthor{*this, "txtAuthor"};
  Frame frameDate{*this, "frameDate"};
  TextBox txtDate{*this, "txtDate"};

  // SSTab2: IDs and references
  Label lblID{*this, "lblID"};
  TextBox txtID{*this, "txtID"};
  Label lblIDInfo{*this, "lblIDInfo"};
  Label lblModelName{*this, "lblModelName"};
  TextBox txtModelName{*this, "txtModelName"};
  Label lblModelNameInfo{*this, "lblModelNameInfo"};
  Label lblTXDName{*this, "lblTXDName"};
  TextBox txtTXDName{*this, "txtTXDName"};
  Label lblTXDNameInfo{*this, "lblTXDNameInfo"};
  Label lblHandlingID{*this, "lblHandlingID"};
  TextBox txtHandlingID{*this, "txtHandlingID"};
  Label lblHandlingIDInfo{*this, "lblHandlingIDInfo"};
  Label lblGameName{*this, "lblGameName"};
  TextBox txtGameName{*this, "txtGameName"};
  Label lblGameNameInfo{*this, "lblGameNameInfo"};

  // SSTab2: Vehicle properties
  Label lblTyp{*this, "lblTyp"};
  PickList cmbTyp{*this, "cmbTyp"};
  Label lblTypInfo{*this, "lblTypInfo"};
  Label lblAnim{*this, "lblAnim"};
  PickList cmbAnim{*this, "cmbAnim"};
  Label lblAnimInfo{*this, "lblAnimInfo"};
  Label lblKlasse{*this, "lblKlasse"};
  PickList cmbKlasse{*this, "cmbKlasse"};
  Label lblKlasseInfo{*this, "lblKlasseInfo"};
  Label lblFrequenz{*this, "lblFrequenz"};
  TextBox txtFrequenz{*this, "txtFrequenz"};
  Label lblFrequenzInfo{*this, "lblFrequenzInfo"};
  Label lblLevel{*this, "lblLevel"};
  TextBox txtLevel{*this, "txtLevel"};
  Label lblLevelInfo{*this, "lblLevelInfo"};
  Label lblCompRules{*this, "lblCompRules"};
  TextBox txtCompRules{*this, "txtCompRules"};
  Label lblCompRulesInfo{*this, "lblCompRulesInfo"};
  Label lblExtra1{*this, "lblExtra1"};
  TextBox txtExtra1{*this, "txtExtra1"};
  PickList cmbExtra1{*this, "cmbExtra1"};
  Label lblExtra1Info{*this, "lblExtra1Info"};
  Label lblExtra2{*this, "lblExtra2"};
  TextBox txtExtra2{*this, "txtExtra2"};
  Label lblExtra2Info{*this, "lblExtra2Info"};

  // SSTab2: Picture
  Frame picFrame2{*this, "picFrame2"};
  Picture picCar2{*this, "picCar2"};

  // SSTab3: Palette
  ListBox lstColors{*this, "lstColors"};
  Button cmdNewColor{*this, "cmdNewColor"};
  Button cmdDeleteColor{*this, "cmdDeleteColor"};
  Label lblColorName{*this, "lblColorName"};
  TextBox txtColorName{*this, "txtColorName"};
  Label lblRot{*this, "lblRot"};
  ScrollBar HScroll1{*this, "HScroll1"};
  Label lblRotWert{*this, "lblRotWert"};
  Label lblGrün{*this, "lblGrün"};
  ScrollBar HScroll2{*this, "HScroll2"};
  Label lblGrünWert{*this, "lblGrünWert"};
  Label lblBlau{*this, "lblBlau"};
  ScrollBar HScroll3{*this, "HScroll3"};
  Label lblBlauWert{*this, "lblBlauWert"};
  Swatch picFarbe{*this, "picFarbe"};

  // SSTab3: Colour pairs of the vehicles
  Frame frameColors{*this, "frameColors"};
  ListBox lstCarColors{*this, "lstCarColors"};
  Button cmdRemColor{*this, "cmdRemColor"};
  Frame frameAddColors{*this, "frameAddColors"};
  Label lblColor1{*this, "lblColor1"};
  PickList cmbColor1{*this, "cmbColor1"};
  Swatch picColor1{*this, "picColor1"};
  Label lblColor2{*this, "lblColor2"};
  PickList cmbColor2{*this, "cmbColor2"};
  Swatch picColor2{*this, "picColor2"};
  Button cmdAddColor{*this, "cmdAddColor"};

  // The hidden common dialog of open, save as and import.
  FileDialog CmD1;
};

}  // namespace wheelwright
