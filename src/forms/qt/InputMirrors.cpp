#include "forms/qt/InputMirrors.h"

#include "forms/qt/QtText.h"
#include "forms/qt/TypingLimit.h"
#include "forms/qt/WheelGuard.h"

#include <limits>

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionFocusRect>

namespace wheelwright {
namespace {

// A click asks only; the plain control says what state it gives.
class AskingCheckBox : public QCheckBox {
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

// A scroll bar for the keyboard. The toolkit inverts all its keys, which is right for up and down
// only; and no style shows focus on a scroll bar, as none of theirs takes it.
class FocusedScrollBar : public QScrollBar {
  using QScrollBar::QScrollBar;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    setInvertedControls(event->key() != Qt::Key_Left && event->key() != Qt::Key_Right);
    QScrollBar::keyPressEvent(event);
    setInvertedControls(true);
  }

  void paintEvent(QPaintEvent* event) override {
    QScrollBar::paintEvent(event);
    if (!hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
};

Qt::CheckState ShownState(int state) {
  switch (state) {
    case 0:
      return Qt::Unchecked;
    case 1:
      return Qt::Checked;
    default:
      return Qt::PartiallyChecked;
  }
}

}  // namespace

TextBoxMirror::TextBoxMirror(TextBox& box, EventEdge& edge, QWidget* parent)
    : Mirror(box, edge, *new QLineEdit(parent)),
      box_(box),
      widget_(static_cast<QLineEdit&>(Widget())) {
  widget_.setMaxLength(std::numeric_limits<int>::max());
  widget_.setValidator(new TypingLimit(box, &widget_));
  QObject::connect(&widget_, &QLineEdit::textChanged, Receiver(),
                   [this](const QString& text) { Edited(text); });
  FollowAll();
}

void TextBoxMirror::Edited(const QString& text) {
  isBeingEdited_ = true;
  ByHand([&] { box_.EditByHand(InCodePage(text)); });
  Follow(Aspect::Content);
  isBeingEdited_ = false;
}

// A text that the program sets is shown from its start; one that a person is typing keeps the
// cursor behind the same characters, of which the code page may lack some.
void TextBoxMirror::Follow(Aspect aspect) {
  const QString text = Shown(box_.Text());
  if (aspect != Aspect::Content || widget_.text() == text) return;
  const QSignalBlocker blocker(widget_);
  const std::string before = InCodePage(widget_.text().left(widget_.cursorPosition()));
  widget_.setText(text);
  widget_.setCursorPosition(isBeingEdited_ ? static_cast<int>(before.size()) : 0);
}

CheckBoxMirror::CheckBoxMirror(CheckBox& box, EventEdge& edge, QWidget* parent)
    : Mirror(box, edge, *new AskingCheckBox(parent)),
      box_(box),
      widget_(static_cast<QCheckBox&>(Widget())) {
  QObject::connect(&widget_, &QCheckBox::clicked, Receiver(),
                   [this] { ByHand([this] { box_.ClickByHand(); }); });
  FollowAll();
}

void CheckBoxMirror::Follow(Aspect aspect) {
  if (aspect != Aspect::Content) return;
  const QSignalBlocker blocker(widget_);
  widget_.setText(ShownCaption(box_.Caption()));
  widget_.setCheckState(ShownState(box_.State()));
}

ScrollBarMirror::ScrollBarMirror(ScrollBar& bar, EventEdge& edge, QWidget* parent)
    : Mirror(bar, edge, *new FocusedScrollBar(Qt::Horizontal, parent)),
      bar_(bar),
      widget_(static_cast<QScrollBar&>(Widget())) {
  constexpr int kPage = 16;
  widget_.setRange(ScrollBar::kMinimum, ScrollBar::kMaximum);
  widget_.setPageStep(kPage);
  WheelGuard::Guard(widget_);
  FollowAll();
  QObject::connect(&widget_, &QScrollBar::valueChanged, Receiver(),
                   [this](int value) { Moved(value); });
}

void ScrollBarMirror::Moved(int value) {
  ByHand([&] { bar_.MoveByHand(value); });
  Follow(Aspect::Content);
}

void ScrollBarMirror::Follow(Aspect aspect) {
  if (aspect != Aspect::Content) return;
  const QSignalBlocker blocker(widget_);
  widget_.setValue(bar_.Value());
}

}  // namespace wheelwright
