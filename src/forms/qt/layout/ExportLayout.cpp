#include "forms/qt/layout/Layouts.h"

#include <QGridLayout>
#include <QMargins>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

// In pixels at 96 dots per inch. The window comes up as small as all this together lets it; a small screen
// may make the lists lower.
constexpr QSize kExportListSize(145, 251);
constexpr int kLeastListHeight = 100;
constexpr QSize kArrowSize(41, 25);
constexpr QSize kButtonSize(81, 25);
constexpr int kLabelHeight = 17;
constexpr QMargins kMargins(8, 8, 6, 6);
constexpr int kGap = 7;
constexpr int kBelowLists = 5;
constexpr int kBetweenArrows = 7;

enum ExportColumn { kAvailable, kArrows, kChosen };

LabelMirror& AddList(Label& caption, MarkList& list, ExportColumn column, QGridLayout& grid, QWidget* window,
                     MirrorSet& mirrors) {
  LabelMirror& name = mirrors.Add(caption, window);
  QWidget& rows = mirrors.Add(list, window).Widget();
  rows.setMinimumSize(kExportListSize);
  name.Name(rows);
  grid.addWidget(&name.Widget(), 0, column);
  grid.addWidget(&rows, 1, column);
  grid.setColumnStretch(column, 1);
  return name;
}

// A large font needs more than the design.
QWidget* Arrow(Button& button, QWidget* window, MirrorSet& mirrors) {
  QWidget& arrow = mirrors.Add(button, window).Widget();
  const QSize needed(arrow.fontMetrics().horizontalAdvance(">>>>"), arrow.sizeHint().height());
  const QSize size = kArrowSize.expandedTo(needed);
  arrow.setMinimumSize(size);
  arrow.setMaximumWidth(size.width());
  return &arrow;
}

QLayout* Arrows(FrmExport& exporter, QWidget* window, MirrorSet& mirrors) {
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  column->addWidget(Arrow(exporter.cmdAdd, window, mirrors));
  column->addWidget(Arrow(exporter.cmdDel, window, mirrors));
  column->addSpacing(kBetweenArrows);
  column->addWidget(Arrow(exporter.cmdAddAll, window, mirrors));
  column->addWidget(Arrow(exporter.cmdDelAll, window, mirrors));
  column->addStretch();
  return column;
}

// A double click and Enter move the marked rows as the arrow to the other list does.
void MoveByHand(MarkList& list, const Button& arrow, const MirrorSet& mirrors) {
  auto& rows = static_cast<RowView&>(mirrors.Of(list).Widget());
  auto* button = &static_cast<QPushButton&>(mirrors.Of(arrow).Widget());
  rows.entered = [button] { button->click(); };
  QObject::connect(&rows, &RowView::doubleClicked, button, &QPushButton::click);
}

// As wide and high as the row gives, which is at least what its caption needs.
QWidget* BottomButton(Button& button, QWidget* window, MirrorSet& mirrors) {
  QWidget& widget = mirrors.Add(button, window).Widget();
  widget.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
  return &widget;
}

QLayout* BottomRow(FrmExport& exporter, QWidget* window, MirrorSet& mirrors) {
  enum { kSpace, kExportPlace, kClosePlace };
  auto* row = new QGridLayout;
  row->setSpacing(kGap);
  row->setRowMinimumHeight(0, kButtonSize.height());
  row->setColumnMinimumWidth(kExportPlace, kButtonSize.width());
  row->setColumnMinimumWidth(kClosePlace, kButtonSize.width());
  row->setColumnStretch(kSpace, 1);
  row->addWidget(BottomButton(exporter.cmdExport, window, mirrors), 0, kExportPlace);
  row->addWidget(BottomButton(exporter.cmdClose, window, mirrors), 0, kClosePlace);
  return row;
}

}  // namespace

void LayOutExport(FrmExport& exporter, QWidget* window, MirrorSet& mirrors) {
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  grid->setRowMinimumHeight(0, kLabelHeight);
  LabelMirror& available = AddList(exporter.lblExportCar, exporter.lst1, kAvailable, *grid, window, mirrors);
  grid->addLayout(Arrows(exporter, window, mirrors), 1, kArrows);
  LabelMirror& chosen = AddList(exporter.lblExport, exporter.lst2, kChosen, *grid, window, mirrors);
  // An arrow alone says little to who doesn't see where it points.
  for (const Button* arrow : {&exporter.cmdAdd, &exporter.cmdAddAll}) {
    chosen.Describe(mirrors.Of(*arrow).Widget());
  }
  for (const Button* arrow : {&exporter.cmdDel, &exporter.cmdDelAll}) {
    available.Describe(mirrors.Of(*arrow).Widget());
  }
  MoveByHand(exporter.lst1, exporter.cmdAdd, mirrors);
  MoveByHand(exporter.lst2, exporter.cmdDel, mirrors);
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(kMargins);
  column->setSpacing(kBelowLists);
  column->addLayout(grid, 1);
  column->addLayout(BottomRow(exporter, window, mirrors));
  mirrors.Add(exporter.Spez, window);  // hidden for good, it needs no place
  window->window()->layout()->activate();
  window->window()->resize(0, 0);
  for (const MarkList* list : {&exporter.lst1, &exporter.lst2}) {
    mirrors.Of(*list).Widget().setMinimumHeight(kLeastListHeight);
  }
}

}  // namespace wheelwright
