#include "forms/qt/mirrors/InputMirrors.h"

#include "forms/qt/widgets/Inputs.h"
#include "forms/qt/widgets/ShownText.h"

#include <algorithm>
#include <limits>

#include <QSignalBlocker>
#include <QValidator>

namespace wheelwright {
namespace {

bool EndsInPairBefore(const QString& text, int cursor) {
  return cursor > 1 && text[cursor - 1].isLowSurrogate() && text[cursor - 2].isHighSurrogate();
}

// Holds a person's insertion to the length that the plain text box takes. A limit of the line edit
// itself would also cut what the program shows.
class TypingLimit : public QValidator {
 public:
  TypingLimit(const TextBox& box, QObject* parent) : QValidator(parent), box_(box) {}

  // Cuts the end of what was inserted before the cursor until the text fits.
  State validate(QString& text, int& cursor) const override {
    const std::size_t longest = box_.LongestByHand();
    if (longest == std::string::npos) return Acceptable;
    std::size_t length = InCodePage(text).size();
    while (length > longest && cursor > 0) {
      const int units = EndsInPairBefore(text, cursor) ? 2 : 1;
      text.remove(cursor - units, units);
      cursor -= units;
      length = InCodePage(text).size();
    }
    return length <= longest ? Acceptable : Invalid;
  }

 private:
  const TextBox& box_;
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
    : MirrorOf(box, edge, *new QLineEdit(parent)) {
  widget_.setMaxLength(std::numeric_limits<int>::max());
  widget_.setValidator(new TypingLimit(box, &widget_));
  QObject::connect(&widget_, &QLineEdit::textChanged, Receiver(),
                   [this](const QString& text) { Edited(text); });
  FollowAll();
}

void TextBoxMirror::Edited(const QString& text) {
  isBeingEdited_ = true;
  ByHand([&] { plain_.EditByHand(InCodePage(text)); });
  FollowContent();
  isBeingEdited_ = false;
}

// A text that the program sets is shown from its start; one that a person is typing keeps the
// cursor behind the same characters, of which the code page may lack some.
void TextBoxMirror::FollowContent() {
  const QString text = Shown(plain_.Text());
  if (widget_.text() == text) return;
  const QSignalBlocker blocker(widget_);
  const QString before = Shown(InCodePage(widget_.text().left(widget_.cursorPosition())));
  widget_.setText(text);
  widget_.setCursorPosition(isBeingEdited_ ? static_cast<int>(before.size()) : 0);
}

CheckBoxMirror::CheckBoxMirror(CheckBox& box, EventEdge& edge, QWidget* parent)
    : MirrorOf(box, edge, *new AskingCheckBox(parent)) {
  QObject::connect(&widget_, &QCheckBox::clicked, Receiver(),
                   [this] { ByHand([this] { plain_.ClickByHand(); }); });
  FollowAll();
}

void CheckBoxMirror::FollowContent() {
  widget_.setText(ShownCaption(plain_.Caption()));
  widget_.setCheckState(ShownState(plain_.State()));
}

ScrollBarMirror::ScrollBarMirror(ScrollBar& bar, EventEdge& edge, QWidget* parent)
    : MirrorOf(bar, edge, *new ValueBar(parent)) {
  constexpr int kPage = 16;
  widget_.setRange(ScrollBar::kMinimum, ScrollBar::kMaximum);
  widget_.setPageStep(kPage);
  widget_.setMinimumHeight(std::max(widget_.sizeHint().height(), kLeastHeight));
  FollowAll();
  QObject::connect(&widget_, &QScrollBar::valueChanged, Receiver(), [this](int value) {
    ByHand([&] { plain_.MoveByHand(value); });
    FollowContent();
  });
}

void ScrollBarMirror::FollowContent() {
  const QSignalBlocker blocker(widget_);
  widget_.setValue(plain_.Value());
}

}  // namespace wheelwright
