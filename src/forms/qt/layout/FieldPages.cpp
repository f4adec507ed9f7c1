#include "forms/qt/layout/Layouts.h"
#include "forms/qt/widgets/Inputs.h"
#include "screen/Fields.h"

#include <algorithm>
#include <vector>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

// In characters: on a wide screen a hint stands beside its input still.
constexpr int kMostInputWidth = 48;

QGridLayout& GridOf(QWidget& page) {
  // In characters. No label is longer, so that the inputs stay in place in every language.
  constexpr int kLabelWidth = 25;
  constexpr int kInputWidth = 24;
  constexpr int kInputShare = 3;
  constexpr int kInfoShare = 2;
  const int gap = page.fontMetrics().height();
  auto* grid = new QGridLayout(&page);
  grid->setContentsMargins(gap, gap, gap, gap);
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(gap / 2);
  grid->setColumnMinimumWidth(kLabelColumn, kLabelWidth * page.fontMetrics().averageCharWidth());
  grid->setColumnMinimumWidth(kInputColumn, kInputWidth * page.fontMetrics().averageCharWidth());
  grid->setColumnStretch(kInputColumn, kInputShare);
  grid->setColumnStretch(kInfoColumn, kInfoShare);
  return *grid;
}

// Several inputs of one row lie on the same spot; the program shows one of them.
void PlaceRow(QGridLayout& grid, int row, LabelMirror& label, const std::vector<QWidget*>& inputs,
              LabelMirror* hint) {
  grid.addWidget(&label.Widget(), row, kLabelColumn);
  for (QWidget* input : inputs) {
    label.Name(*input);
    if (hint != nullptr) hint->Describe(*input);
    input->setMaximumWidth(kMostInputWidth * input->fontMetrics().averageCharWidth());
    grid.addWidget(input, row, kInputColumn);
  }
  if (hint != nullptr) grid.addWidget(&hint->Widget(), row, kInfoColumn);
}

// Builds the rows of a tab, from top to bottom: label, input and hint.
template <class Record, std::size_t Count>
void BuildRows(FrmMain& main, const std::array<FieldRow<Record>, Count>& fields, int tab, QWidget& page,
               MirrorSet& mirrors) {
  std::vector<const FieldRow<Record>*> ofTab;
  for (const FieldRow<Record>& field : fields) {
    if (field.tab == tab) ofTab.push_back(&field);
  }
  std::ranges::sort(ofTab, {}, &FieldRow<Record>::tabRow);
  QGridLayout& grid = GridOf(page);
  const int height = RowHeight(page);
  for (const FieldRow<Record>* field : ofTab) {
    auto& [label, hint] = LabelsOf(main, *field);
    LabelMirror& name = mirrors.Add(label, &page);
    std::vector<QWidget*> inputs;
    const auto add = [&](auto& input) { inputs.push_back(&mirrors.Add(input, &page).Widget()); };
    std::visit([&](auto input) { add(main.*input); }, field->input);
    if (InputOf<TextBox>(main, *field) == &main.txtExtra1) add(main.cmbExtra1);
    PlaceRow(grid, field->tabRow, name, inputs, hint ? &mirrors.Add(*hint, &page) : nullptr);
    grid.setRowMinimumHeight(field->tabRow, height);
  }
  grid.setRowStretch(grid.rowCount(), 1);
}

QFrame* Line(QWidget& page) {
  auto* line = new QFrame(&page);
  line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  return line;
}

// The boxes of one digit of the flags stand in one row, between two lines.
void BuildFlags(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  constexpr int kBoxesOfDigit = 4;
  auto* grid = new QGridLayout(&RoomOn(page));
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(page.fontMetrics().height());
  for (std::size_t i = 0; i < kFlagCount; ++i) {
    const int digit = static_cast<int>(i) / kBoxesOfDigit;
    const int place = static_cast<int>(i) % kBoxesOfDigit;
    if (place == 0 && digit > 0) grid->addWidget(Line(page), 2 * digit - 1, 0, 1, kBoxesOfDigit);
    grid->addWidget(&mirrors.Add(main.chkFlag[i], &page).Widget(), 2 * digit, place);
  }
  grid->setRowStretch(grid->rowCount(), 1);
}

void BuildMisc(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  const int gap = page.fontMetrics().height();
  auto* column = new QVBoxLayout(&RoomOn(page));
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(gap);
  // Hidden for good, they need no place.
  for (Button* hidden : {&main.cmdNewCar, &main.cmdDeleteCar}) mirrors.Add(*hidden, &page);
  auto* buttons = new QGridLayout;
  buttons->addWidget(&mirrors.Add(main.cmdImportCar, &page).Widget(), 0, 0);
  buttons->addWidget(&mirrors.Add(main.cmdExportCar, &page).Widget(), 0, 1);
  // Buttons of the same width, a quarter of the page each.
  buttons->setColumnStretch(0, 1);
  buttons->setColumnStretch(1, 1);
  buttons->setColumnStretch(2, 2);
  column->addLayout(buttons);
  auto* frames = new QHBoxLayout;
  frames->setSpacing(gap);
  frames->addWidget(Framed(main.frameAuthor, main.txtAuthor, page, mirrors));
  frames->addWidget(Framed(main.frameDate, main.txtDate, page, mirrors));
  column->addLayout(frames);
  column->addStretch();
}

// A page with nothing but a picture in its frame.
void BuildPicturePage(QWidget& page, Frame& frame, Picture& picture, MirrorSet& mirrors) {
  auto* layout = new QVBoxLayout(&page);
  layout->addWidget(&mirrors.AddAround(frame, picture, &page).Widget(), 0, Qt::AlignCenter);
}

}  // namespace

QWidget& RoomOn(QWidget& page) {
  constexpr int kMostCharacters = 150;
  const int gap = page.fontMetrics().height();
  auto* room = new QWidget;
  room->setMaximumWidth(kMostCharacters * page.fontMetrics().averageCharWidth());
  auto* whole = new QHBoxLayout(&page);
  whole->setContentsMargins(gap, gap, gap, gap);
  whole->addWidget(room, 1);
  whole->addStretch();
  return *room;
}

// A pick list is the highest input.
int RowHeight(QWidget& page) { return PickBox(&page).sizeHint().height(); }

void BuildHandlingPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors) {
  for (const HandlingTab tab : {kGeneralTab, kDimensionsTab, kDriveTab, kBrakesTab, kSuspensionTab}) {
    BuildRows(main, kHandlingFields, tab, group.Page(tab), mirrors);
  }
  BuildFlags(main, group.Page(kFlagsTab), mirrors);
  BuildPicturePage(group.Page(kPictureTab), main.picFrame, main.picCar, mirrors);
  BuildMisc(main, group.Page(kMiscTab), mirrors);
}

void BuildDefinitionPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors) {
  for (const DefinitionTab tab : {kReferencesTab, kPropertiesTab}) {
    BuildRows(main, kDefinitionFields, tab, group.Page(tab), mirrors);
  }
  BuildPicturePage(group.Page(kDefinitionPictureTab), main.picFrame2, main.picCar2, mirrors);
}

}  // namespace wheelwright
