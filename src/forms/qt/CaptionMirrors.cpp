#include "forms/qt/CaptionMirrors.h"

#include "forms/qt/QtText.h"
#include "screen/MainWindow.h"

#include <QEvent>

namespace wheelwright {
namespace {

// Keeps a label's mnemonic on the one of its inputs that shows.
class BuddyOfShownInput : public QObject {
 public:
  explicit BuddyOfShownInput(QLabel& label) : QObject(&label), label_(label) {}

 protected:
  bool eventFilter(QObject* input, QEvent* event) override {
    if (event->type() == QEvent::ShowToParent) label_.setBuddy(static_cast<QWidget*>(input));
    return false;
  }

 private:
  QLabel& label_;
};

}  // namespace

LabelMirror::LabelMirror(Label& label, EventEdge& edge, QWidget* parent)
    : Mirror(label, edge, *new QLabel(parent)),
      label_(label),
      widget_(static_cast<QLabel&>(Widget())) {
  widget_.setTextFormat(Qt::PlainText);
  FollowAll();
}

void LabelMirror::Name(QWidget& input) {
  spoken_.AddNamed(input);
  input.installEventFilter(new BuddyOfShownInput(widget_));
  if (widget_.buddy() == nullptr || widget_.buddy()->isHidden()) widget_.setBuddy(&input);
  Follow(Aspect::Content);
}

void LabelMirror::Describe(QWidget& input) { spoken_.AddDescribed(input); }

// Only a label with a buddy reads marks.
QString LabelMirror::Meant() const {
  const QString caption = ShownCaption(label_.Caption());
  return widget_.buddy() == nullptr ? WithoutMarks(caption) : caption;
}

void LabelMirror::Follow(Aspect aspect) {
  if (aspect != Aspect::Content) return;
  widget_.setText(Meant());
  spoken_.Say(WithoutMarks(ShownCaption(label_.Caption())));
}

FrameMirror::FrameMirror(Frame& frame, EventEdge& edge, QWidget* parent)
    : Mirror(frame, edge, *new QGroupBox(parent)),
      frame_(frame),
      widget_(static_cast<QGroupBox&>(Widget())) {
  FollowAll();
}

void FrameMirror::Follow(Aspect aspect) {
  if (aspect != Aspect::Content) return;
  const QString caption = ShownCaption(frame_.Caption());
  widget_.setTitle(caption);
  spoken_.Say(WithoutMarks(caption));
}

PictureFrameMirror::PictureFrameMirror(Frame& frame, EventEdge& edge, QWidget* parent)
    : Mirror(frame, edge, *new QFrame(parent)) {
  auto& widget = static_cast<QFrame&>(Widget());
  widget.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  const int border = 2 * widget.frameWidth();
  widget.setBackgroundRole(QPalette::Window);
  widget.setAutoFillBackground(true);
  widget.setFixedSize(kPictureFrameWidth + border, kPictureFrameHeight + border);
  FollowAll();
}

ButtonMirror::ButtonMirror(Button& button, EventEdge& edge, QWidget* parent)
    : Mirror(button, edge, *new QPushButton(parent)),
      button_(button),
      widget_(static_cast<QPushButton&>(Widget())) {
  widget_.setAutoDefault(false);
  QObject::connect(&widget_, &QPushButton::clicked, Receiver(),
                   [this] { ByHand([this] { button_.ClickByHand(); }); });
  FollowAll();
}

void ButtonMirror::Follow(Aspect aspect) {
  if (aspect == Aspect::Content) widget_.setText(ShownCaption(button_.Caption()));
}

}  // namespace wheelwright
