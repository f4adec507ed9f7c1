#include "forms/qt/layout/FieldRows.h"
#include "forms/qt/layout/Layouts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

QFrame* Line(QWidget& page) {
  auto* line = new QFrame(&page);
  line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  return line;
}

// The boxes of one digit of the flags stand in one row, between two lines.
void BuildFlags(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  constexpr int kBoxesOfDigit = 4;
  const int gap = page.fontMetrics().height();
  auto* grid = new QGridLayout(&page);
  grid->setContentsMargins(gap, gap, gap, gap);
  grid->setHorizontalSpacing(gap);
  for (std::size_t i = 0; i < kFlagCount; ++i) {
    const int digit = static_cast<int>(i) / kBoxesOfDigit;
    const int place = static_cast<int>(i) % kBoxesOfDigit;
    if (place == 0 && digit > 0) grid->addWidget(Line(page), 2 * digit - 1, 0, 1, kBoxesOfDigit);
    grid->addWidget(&mirrors.Add(main.chkFlag[i], &page).Widget(), 2 * digit, place);
  }
  grid->setRowStretch(grid->rowCount(), 1);
}

FrameMirror& FramedText(Frame& frame, TextBox& text, QWidget& page, MirrorSet& mirrors) {
  FrameMirror& mirror = mirrors.Add(frame, &page);
  QWidget& input = mirrors.Add(text, &mirror.Widget()).Widget();
  mirror.Name(input);
  (new QVBoxLayout(&mirror.Widget()))->addWidget(&input);
  return mirror;
}

void BuildMisc(FrmMain& main, QWidget& page, MirrorSet& mirrors) {
  const int gap = page.fontMetrics().height();
  auto* column = new QVBoxLayout(&page);
  column->setContentsMargins(gap, gap, gap, gap);
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
  frames->addWidget(&FramedText(main.frameAuthor, main.txtAuthor, page, mirrors).Widget());
  frames->addWidget(&FramedText(main.frameDate, main.txtDate, page, mirrors).Widget());
  column->addLayout(frames);
  column->addStretch();
}

}  // namespace

void BuildHandlingPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors) {
  for (const HandlingTab tab :
       {kGeneralTab, kDimensionsTab, kDriveTab, kBrakesTab, kSuspensionTab}) {
    BuildRows(main, kHandlingFields, tab, group.Page(tab), mirrors);
  }
  BuildFlags(main, group.Page(kFlagsTab), mirrors);
  BuildPicturePage(group.Page(kPictureTab), main.picFrame, main.picCar, mirrors);
  BuildMisc(main, group.Page(kMiscTab), mirrors);
}

void BuildPicturePage(QWidget& page, Frame& frame, Picture& picture, MirrorSet& mirrors) {
  auto* layout = new QVBoxLayout(&page);
  layout->addWidget(&mirrors.AddAround(frame, picture, &page).Widget(), 0, Qt::AlignCenter);
}

}  // namespace wheelwright
