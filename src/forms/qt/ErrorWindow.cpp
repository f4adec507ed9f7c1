#include "forms/qt/ErrorWindow.h"

#include "forms/qt/QtText.h"

#include <QFont>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace wheelwright {
namespace {

constexpr QSize kReportSize(570, 336);
constexpr QSize kReportListSize(569, 297);
constexpr QRect kCloseButton(464, 304, 97, 25);

QFont Verdana(QFont font) {
  font.setFamilies({"Verdana", font.family()});
  return font;
}

}  // namespace

ErrorWindow::ErrorWindow(FrmError& error, EventEdge& edge, MirrorSet& mirrors, QWidget* owner)
    : WindowShell(error, edge, owner) {
  QWidget& list = mirrors.Add(error.lstErrors, this).Widget();
  QWidget& close = mirrors.Add(error.cmdClose, this).Widget();
  list.setFont(Verdana(font()));
  list.setAccessibleName(ShownTitle(error.Title()));
  close.setFont(Verdana(font()));
  close.setMinimumSize(kCloseButton.size());

  auto* bottom = new QHBoxLayout;
  bottom->setContentsMargins(0, kCloseButton.top() - kReportListSize.height(),
                             kReportListSize.width() - kCloseButton.right() - 1,
                             kReportSize.height() - kCloseButton.bottom() - 1);
  bottom->addStretch();
  bottom->addWidget(&close);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, kReportSize.width() - kReportListSize.width(), 0);
  column->setSpacing(0);
  column->addWidget(&list, 1);
  column->addLayout(bottom);
  resize(kReportSize);
}

}  // namespace wheelwright
