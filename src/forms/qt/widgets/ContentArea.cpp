#include "forms/qt/widgets/ContentArea.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

namespace wheelwright {

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(new QWidget);
  // What lies behind shows through: a style may paint the pages of tabs in a way of its own.
  viewport()->setAutoFillBackground(false);
  widget()->setAutoFillBackground(false);
  QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    // Under the mouse it would slip away before the button is up again.
    const bool byMouse = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (now != nullptr && widget()->isAncestorOf(now) && !byMouse) ensureWidgetVisible(now);
  });
}

void ContentArea::FitInto(QSize room) {
  if (room == room_) return;
  room_ = room;
  LetInsideGiveWay();
  // On a page that doesn't show it would say nothing to what it lies in.
  for (QWidget* around = this; around != nullptr; around = around->parentWidget()) around->updateGeometry();
}

bool ContentArea::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    LetInsideGiveWay();
    updateGeometry();
  }
  return QScrollArea::event(event);
}

void ContentArea::LetInsideGiveWay() {
  constexpr QSize kLeastInside(200, 100);
  const QSize whole = widget()->minimumSizeHint();
  if (whole.boundedTo(room_) == whole) return;
  QSize inside(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  if (whole.width() > room_.width()) inside.setWidth(kLeastInside.width());
  if (whole.height() > room_.height()) inside.setHeight(kLeastInside.height());
  for (QScrollArea* area : widget()->findChildren<QScrollArea*>()) {
    auto& content = static_cast<ContentArea&>(*area);
    content.FitInto(content.room_.boundedTo(inside));
  }
}

QSize ContentArea::Needed() const {
  QSize needed = widget()->minimumSizeHint();
  if (needed.height() > room_.height()) needed.rwidth() += verticalScrollBar()->sizeHint().width();
  // A row of tabs could do with less, by its arrows; only a small screen shall show them.
  int least = 0;
  int whole = 0;
  for (const auto* tabs : widget()->findChildren<QTabWidget*>(Qt::FindDirectChildrenOnly)) {
    least = std::max(least, tabs->minimumSizeHint().width());
    whole = std::max(whole, tabs->tabBar()->sizeHint().width());
  }
  needed.rwidth() += std::max(whole - least, 0);
  return needed;
}

}  // namespace wheelwright
