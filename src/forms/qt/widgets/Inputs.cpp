#include "forms/qt/widgets/Inputs.h"

#include "forms/qt/widgets/Swatches.h"

#include <QEvent>
#include <QListView>
#include <QPainter>

namespace wheelwright {

WheelGuard::WheelGuard(QWidget& input) : QObject(&input) { input.installEventFilter(this); }

bool WheelGuard::eventFilter(QObject* /*input*/, QEvent* event) {
  if (event->type() != QEvent::Wheel) return false;
  event->ignore();
  return true;
}

FocusRing::FocusRing(QWidget& input) : QFocusFrame(&input) {
  hide();
  input.installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* /*input*/, QEvent* event) {
  if (event->type() == QEvent::Resize) resize(parentWidget()->size());
  if (event->type() == QEvent::FocusOut) hide();
  if (event->type() != QEvent::FocusIn) return false;
  raise();
  show();
  return false;
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
  constexpr int kWidth = 2;
  QPainter painter(this);
  painter.setPen(QPen(palette().windowText(), kWidth));
  painter.drawRect(rect().adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
}

ValueBar::ValueBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::StrongFocus);
  setInvertedControls(false);
  new WheelGuard(*this);
  new FocusRing(*this);
}

void ValueBar::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  QPainter painter(this);
  PaintEdge(painter, rect());
}

PickBox::PickBox(QWidget* parent) : QComboBox(parent) {
  constexpr int kRowsDropped = 16;
  constexpr int kCharactersShown = 14;
  setStyle(&style_);
  setItemDelegate(new RowDelegate(this));
  setMaxVisibleItems(kRowsDropped);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kCharactersShown);
  static_cast<QListView*>(view())->setUniformItemSizes(true);
  setFocusPolicy(Qt::StrongFocus);
  new WheelGuard(*this);
  new FocusRing(*this);
}

int PickBox::ListDropDown::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                     QStyleHintReturn* returned) const {
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace wheelwright
