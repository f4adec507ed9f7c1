#include "forms/qt/layout/Layouts.h"
#include "gamefiles/PaletteLabel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

// An area of colour and a vehicle's pairs take what height is left, but on a high screen not more than so
// many lines of text.
constexpr int kMostLines = 18;
constexpr int kNearlyAll = 99;

QHBoxLayout* Halves(QWidget& page) {
  auto* halves = new QHBoxLayout(&RoomOn(page));
  halves->setContentsMargins(0, 0, 0, 0);
  halves->setSpacing(page.fontMetrics().height());
  return halves;
}

// The input with its name in front of it, and what shows its value behind.
void PlaceRow(QGridLayout& grid, LabelMirror& name, QWidget& input, QWidget& value) {
  const int row = grid.rowCount();
  name.Name(input);
  grid.addWidget(&name.Widget(), row, kLabelColumn);
  grid.addWidget(&input, row, kInputColumn);
  grid.addWidget(&value, row, kInfoColumn);
}

void AddBar(Label& label, ScrollBar& bar, Label& value, QGridLayout& grid, QWidget& page,
            MirrorSet& mirrors) {
  LabelMirror& name = mirrors.Add(label, &page);
  QWidget& input = mirrors.Add(bar, &page).Widget();
  QLabel& text = mirrors.Add(value, &page).Widget();
  text.setMinimumWidth(text.fontMetrics().horizontalAdvance("255"));
  text.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  PlaceRow(grid, name, input, text);
}

ColorsOfRow ColorsOfLabels(const RowList& labels) {
  return [&labels](std::size_t row) { return ColorsInLabel(labels.Rows()[row]); };
}

QLayout* ColorList(FrmMain& main, TabGroupMirror& group, QWidget& page, MirrorSet& mirrors) {
  auto* column = new QVBoxLayout;
  ListBoxMirror& colors = mirrors.Add(main.lstColors, &page);
  colors.ShowColors(ColorsOfLabels(main.lstColors));
  QWidget& list = colors.Widget();
  group.Name(kPaletteTab, list);
  column->addWidget(&list);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(&mirrors.Add(main.cmdNewColor, &page).Widget());
  buttons->addWidget(&mirrors.Add(main.cmdDeleteColor, &page).Widget());
  column->addLayout(buttons);
  return column;
}

QLayout* ColorEditor(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  auto* grid = new QGridLayout;
  // In characters: the inputs stay in place in most languages.
  constexpr int kLabelWidth = 10;
  grid->setColumnMinimumWidth(kLabelColumn, kLabelWidth * page.fontMetrics().averageCharWidth());
  grid->setColumnStretch(kInputColumn, 1);
  grid->setHorizontalSpacing(page.fontMetrics().height());
  grid->setVerticalSpacing(page.fontMetrics().height() / 2);
  LabelMirror& name = mirrors.Add(main.lblColorName, &page);
  QWidget& input = mirrors.Add(main.txtColorName, &page).Widget();
  name.Name(input);
  grid->addWidget(&name.Widget(), 0, kLabelColumn);
  grid->addWidget(&input, 0, kInputColumn, 1, 2);
  AddBar(main.lblRot, main.HScroll1, main.lblRotWert, *grid, page, mirrors);
  AddBar(main.lblGrün, main.HScroll2, main.lblGrünWert, *grid, page, mirrors);
  AddBar(main.lblBlau, main.HScroll3, main.lblBlauWert, *grid, page, mirrors);
  const int below = grid->rowCount();
  for (int row = 0, height = RowHeight(page); row < below; ++row) grid->setRowMinimumHeight(row, height);
  QWidget& area = mirrors.Add(main.picFarbe, &page).Widget();
  area.setMaximumHeight(kMostLines * page.fontMetrics().height());
  grid->addWidget(&area, below, kInputColumn, 1, 2);
  grid->setRowStretch(below, kNearlyAll);
  grid->setRowStretch(below + 1, 1);
  return grid;
}

void BuildPalette(FrmMain& main, TabGroupMirror& group, QWidget& page, MirrorSet& mirrors) {
  QHBoxLayout* halves = Halves(page);
  halves->addLayout(ColorList(main, group, page, mirrors), 1);
  halves->addLayout(ColorEditor(main, page, mirrors), 1);
}

QWidget* PairList(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  QWidget* frame = Framed(main.frameColors, main.lstCarColors, page, mirrors);
  const auto colorsOf = [&swatches = main.lstCarColors.swatches](std::size_t row) {
    return row < swatches.size() ? swatches[row] : std::vector<Rgb>();
  };
  static_cast<ListBoxMirror&>(mirrors.Of(main.lstCarColors)).ShowColors(colorsOf, 2);
  QWidget& remove = mirrors.Add(main.cmdRemColor, frame).Widget();
  auto* column = static_cast<QVBoxLayout*>(frame->layout());
  column->addWidget(&remove, 0, Qt::AlignRight);
  mirrors.Of(main.lstCarColors).Widget().setMaximumHeight(kMostLines * page.fontMetrics().height());
  column->setStretch(0, kNearlyAll);
  column->addStretch(1);
  return frame;
}

void AddPick(Label& label, PickList& pick, Swatch& swatch, QGridLayout& grid, QWidget& frame,
             MirrorSet& mirrors) {
  constexpr int kCharactersShown = 22;
  LabelMirror& name = mirrors.Add(label, &frame);
  PickListMirror& colors = mirrors.Add(pick, &frame);
  colors.ShowColors(ColorsOfLabels(pick));
  QComboBox& input = colors.Widget();
  input.setMinimumContentsLength(kCharactersShown);
  PlaceRow(grid, name, input, mirrors.Add(swatch, &frame).Widget());
}

QWidget* PairAdder(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  QWidget& frame = mirrors.Add(main.frameAddColors, &page).Widget();
  auto* grid = new QGridLayout(&frame);
  grid->setColumnStretch(kInputColumn, 1);
  grid->setVerticalSpacing(frame.fontMetrics().height() / 2);
  AddPick(main.lblColor1, main.cmbColor1, main.picColor1, *grid, frame, mirrors);
  AddPick(main.lblColor2, main.cmbColor2, main.picColor2, *grid, frame, mirrors);
  const int below = grid->rowCount();
  grid->addWidget(&mirrors.Add(main.cmdAddColor, &frame).Widget(), below, kInputColumn, 1, 2, Qt::AlignRight);
  grid->setRowStretch(below + 1, 1);
  return &frame;
}

void BuildPairs(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  QHBoxLayout* halves = Halves(page);
  halves->addWidget(PairList(main, page, mirrors), 1);
  halves->addWidget(PairAdder(main, page, mirrors), 1);
}

}  // namespace

void BuildColorPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors) {
  BuildPalette(main, group, group.Page(kPaletteTab), mirrors);
  BuildPairs(main, group.Page(kPairsTab), mirrors);
}

}  // namespace wheelwright
