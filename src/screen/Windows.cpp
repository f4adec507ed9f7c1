// The windows as they are built: fixed entries, frames and pages, first states.
#include "core/CodePage.h"
#include "screen/Fields.h"
#include "screen/MainWindow.h"
#include "screen/OtherWindows.h"

#include <string>
#include <utility>

namespace wheelwright {
namespace {

template <std::size_t... I>
std::array<CheckBox, kFlagCount> FlagBoxes(Window& window, std::index_sequence<I...> /*numbers*/) {
  return {CheckBox(window, "chkFlag" + std::to_string(I + 1), {kFlagCaptions[I]})...};
}

void AddEntries(PickList& list, std::span<const char* const> words) {
  for (const char* word : words) list.AddRow(FromUnicode(word));
}

void PutAll(std::initializer_list<Control*> controls, Control& container, int page = 0) {
  for (Control* control : controls) control->PutInto(container, page);
}

template <class Fields>
void BuildFields(FrmMain& m, const Fields& fields, TabGroup& group) {
  for (const auto& field : fields) {
    auto& [label, hint] = LabelsOf(m, field);
    label.PutInto(group, field.tab);
    if (hint) hint->PutInto(group, field.tab);
    std::visit([&](auto input) { (m.*input).PutInto(group, field.tab); }, field.input);
    if (auto* const list = InputOf<PickList>(m, field)) AddEntries(*list, field.entries.words);
  }
}

void BuildHandlingTabs(FrmMain& m) {
  BuildFields(m, kHandlingFields, m.SSTab1);
  for (CheckBox& flag : m.chkFlag) flag.PutInto(m.SSTab1, kFlagsTab);
  m.picFrame.PutInto(m.SSTab1, kPictureTab);
  m.picCar.PutInto(m.picFrame);
  PutAll({&m.cmdNewCar, &m.cmdDeleteCar, &m.cmdImportCar, &m.cmdExportCar, &m.frameAuthor, &m.frameDate},
         m.SSTab1, kMiscTab);
  m.txtAuthor.PutInto(m.frameAuthor);
  m.txtDate.PutInto(m.frameDate);
  m.cmdNewCar.SetVisible(false);
  m.cmdDeleteCar.SetVisible(false);
  constexpr std::size_t kLongestName = 14;
  m.txtAutoname.LimitTyping(kLongestName);
}

void BuildDefinitionTabs(FrmMain& m) {
  BuildFields(m, kDefinitionFields, m.SSTab2);
  m.cmbExtra1.PutInto(m.SSTab2, kPropertiesTab);
  m.txtExtra1.SetVisible(false);  // it shares its spot with cmbExtra1
  AddEntries(m.cmbExtra1, kWheels);
  m.picFrame2.PutInto(m.SSTab2, kDefinitionPictureTab);
  m.picCar2.PutInto(m.picFrame2);
}

void BuildColorTabs(FrmMain& m) {
  PutAll({&m.lstColors, &m.cmdNewColor, &m.cmdDeleteColor, &m.lblColorName, &m.txtColorName, &m.lblRot,
          &m.HScroll1, &m.lblRotWert, &m.lblGrün, &m.HScroll2, &m.lblGrünWert, &m.lblBlau, &m.HScroll3,
          &m.lblBlauWert, &m.picFarbe},
         m.SSTab3, kPaletteTab);
  m.frameColors.PutInto(m.SSTab3, kPairsTab);
  PutAll({&m.lstCarColors, &m.cmdRemColor}, m.frameColors);
  m.frameAddColors.PutInto(m.SSTab3, kPairsTab);
  PutAll({&m.lblColor1, &m.cmbColor1, &m.picColor1, &m.lblColor2, &m.cmbColor2, &m.picColor2, &m.cmdAddColor},
         m.frameAddColors);
}

}  // namespace

FrmMain::FrmMain()
    : Window("frmMain", "GTAViceCity PC-Version - Wheelwright"),
      chkFlag(FlagBoxes(*this, std::make_index_sequence<kFlagCount>{})) {
  cmbSprache.PutInto(FrameSprache);
  cmbAutos.PutInto(FrameAutos);
  cmbAutos.RunClickOnlyWhenRowChanges();
  BuildHandlingTabs(*this);
  BuildDefinitionTabs(*this);
  BuildColorTabs(*this);
  for (Control* control : std::initializer_list<Control*>{&FrameAutos, &cmdSave, &cmdSaveAs, &cmdUndo,
                                                          &cmdBackup, &SSTab1, &SSTab2, &SSTab3}) {
    control->SetEnabled(false);
  }
  SSTab2.SetVisible(false);
  SSTab3.SetVisible(false);
}

FrmError::FrmError() : Window("frmError", "Errors") {}

FrmExport::FrmExport() : Window("frmExport", "Export") { Spez.SetVisible(false); }

}  // namespace wheelwright
