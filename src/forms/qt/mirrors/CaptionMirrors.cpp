#include "forms/qt/mirrors/CaptionMirrors.h"

#include "forms/qt/widgets/ContentArea.h"
#include "forms/qt/widgets/Inputs.h"
#include "forms/qt/widgets/ShownText.h"
#include "screen/MainWindow.h"

#include <algorithm>

#include <QEvent>
#include <QSignalBlocker>
#include <QTabBar>

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

void SpokenCaption::AddNamed(QWidget& widget) {
  named_.push_back(&widget);
  widget.setAccessibleName(caption_);
}

void SpokenCaption::AddDescribed(QWidget& widget) {
  described_.push_back(&widget);
  widget.setAccessibleDescription(caption_);
}

void SpokenCaption::Say(const QString& caption) {
  caption_ = caption;
  for (QWidget* widget : named_) widget->setAccessibleName(caption);
  for (QWidget* widget : described_) widget->setAccessibleDescription(caption);
}

LabelMirror::LabelMirror(Label& label, EventEdge& edge, QWidget* parent)
    : MirrorOf(label, edge, *new QLabel(parent)) {
  widget_.setTextFormat(Qt::PlainText);
  FollowAll();
}

void LabelMirror::Name(QWidget& input) {
  spoken_.AddNamed(input);
  input.installEventFilter(new BuddyOfShownInput(widget_));
  if (widget_.buddy() == nullptr || widget_.buddy()->isHidden()) widget_.setBuddy(&input);
  FollowContent();
}

// Only a label with a buddy reads marks.
void LabelMirror::FollowContent() {
  const QString caption = ShownCaption(plain_.Caption());
  widget_.setText(widget_.buddy() == nullptr ? WithoutMarks(caption) : caption);
  spoken_.Say(WithoutMarks(caption));
}

FrameMirror::FrameMirror(Frame& frame, EventEdge& edge, QWidget* parent)
    : MirrorOf(frame, edge, *new QGroupBox(parent)) {
  FollowAll();
}

void FrameMirror::FollowContent() {
  const QString caption = ShownCaption(plain_.Caption());
  widget_.setTitle(caption);
  spoken_.Say(WithoutMarks(caption));
}

PictureFrameMirror::PictureFrameMirror(Frame& frame, EventEdge& edge, QWidget* parent)
    : MirrorOf(frame, edge, *new QFrame(parent)) {
  widget_.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  const int border = 2 * widget_.frameWidth();
  widget_.setBackgroundRole(QPalette::Window);
  widget_.setAutoFillBackground(true);
  widget_.setFixedSize(kPictureFrameWidth + border, kPictureFrameHeight + border);
  FollowAll();
}

ButtonMirror::ButtonMirror(Button& button, EventEdge& edge, QWidget* parent)
    : MirrorOf(button, edge, *new QPushButton(parent)) {
  widget_.setAutoDefault(false);
  widget_.setMinimumHeight(std::max(widget_.sizeHint().height(), kLeastHeight));
  QObject::connect(&widget_, &QPushButton::clicked, Receiver(),
                   [this] { ByHand([this] { plain_.ClickByHand(); }); });
  FollowAll();
}

void ButtonMirror::FollowContent() { widget_.setText(ShownCaption(plain_.Caption())); }

TabGroupMirror::TabGroupMirror(TabGroup& group, EventEdge& edge, QWidget* parent)
    : MirrorOf(group, edge, *new QTabWidget(parent)), spoken_(group.Tabs().size()) {
  widget_.setUsesScrollButtons(true);
  for (std::size_t tab = 0; tab < spoken_.size(); ++tab) widget_.addTab(new ContentArea, "");
  new WheelGuard(*widget_.tabBar());
  new FocusRing(*widget_.tabBar());
  FollowAll();
  QObject::connect(&widget_, &QTabWidget::currentChanged, Receiver(), [this](int tab) {
    ByHand([&] { plain_.ClickByHand(tab); });
    Follow(Aspect::Choice);
  });
}

QWidget& TabGroupMirror::Page(int tab) const {
  return *static_cast<ContentArea*>(widget_.widget(tab))->widget();
}

void TabGroupMirror::Name(int tab, QWidget& input) {
  spoken_.at(static_cast<std::size_t>(tab)).AddNamed(input);
}

// A tab reads marks; the plain captions are as they are read on screen.
void TabGroupMirror::Follow(Aspect aspect) {
  const QSignalBlocker blocker(widget_);
  if (aspect == Aspect::Choice) widget_.setCurrentIndex(plain_.Tab());
  if (aspect != Aspect::Content) return;
  for (int tab = 0; tab < widget_.count(); ++tab) {
    const auto index = static_cast<std::size_t>(tab);
    const QString caption = ShownCaption(plain_.Tabs()[index]);
    widget_.setTabText(tab, WithDoubledMarks(caption));
    spoken_[index].Say(caption);
  }
}

}  // namespace wheelwright
