#include "forms/qt/widgets/Inputs.h"

#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStyledItemDelegate>

namespace wheelwright {
namespace {

// Keeps the mouse wheel from changing an input that merely lies under the pointer.
class WheelGuard : public QObject {
 public:
  explicit WheelGuard(QWidget& input) : QObject(&input) {
    input.setFocusPolicy(Qt::StrongFocus);
    input.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* input, QEvent* event) override {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(input)->hasFocus()) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

FocusedScrollBar::FocusedScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
  new WheelGuard(*this);
}

void FocusedScrollBar::keyPressEvent(QKeyEvent* event) {
  setInvertedControls(event->key() != Qt::Key_Left && event->key() != Qt::Key_Right);
  QScrollBar::keyPressEvent(event);
  setInvertedControls(true);
}

void FocusedScrollBar::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

// A menu's delegate would read marks and tabs in the texts of rows.
PickBox::PickBox(QWidget* parent) : QComboBox(parent) {
  constexpr int kRowsDropped = 20;
  constexpr int kCharactersShown = 14;
  setStyle(&style_);
  setItemDelegate(new QStyledItemDelegate(this));
  setMaxVisibleItems(kRowsDropped);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kCharactersShown);
  static_cast<QListView*>(view())->setUniformItemSizes(true);
  new WheelGuard(*this);
}

int PickBox::ListDropDown::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                     QStyleHintReturn* returned) const {
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace wheelwright
