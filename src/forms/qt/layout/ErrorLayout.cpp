#include "forms/qt/layout/Layouts.h"
#include "forms/qt/widgets/ShownText.h"

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

void LayOutError(FrmError& error, QWidget* window, MirrorSet& mirrors) {
  QWidget& list = mirrors.Add(error.lstErrors, window).Widget();
  QWidget& close = mirrors.Add(error.cmdClose, window).Widget();
  list.setFont(Verdana(window->font()));
  list.setAccessibleName(ShownTitle(error.Title()));
  close.setFont(Verdana(window->font()));
  close.setMinimumSize(kCloseButton.size());

  auto* bottom = new QHBoxLayout;
  bottom->setContentsMargins(0, kCloseButton.top() - kReportListSize.height(),
                             kReportListSize.width() - kCloseButton.right() - 1,
                             kReportSize.height() - kCloseButton.bottom() - 1);
  bottom->addStretch();
  bottom->addWidget(&close);
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(0, 0, kReportSize.width() - kReportListSize.width(), 0);
  column->setSpacing(0);
  column->addWidget(&list, 1);
  column->addLayout(bottom);
  window->window()->resize(kReportSize);
}

}  // namespace wheelwright
