#include "forms/qt/mirrors/Mirror.h"

namespace wheelwright {

Mirror::Mirror(Control& control, EventEdge& edge, QWidget& widget)
    : control_(control), edge_(edge), widget_(widget) {
  widget.setObjectName(QString::fromStdString(control.Name()));
  control.notice = [this](Aspect aspect) { Notice(aspect); };
}

Mirror::~Mirror() { control_.notice = nullptr; }

void Mirror::Notice(Aspect aspect) {
  if (aspect == Aspect::State) {
    FollowState();
  } else if (aspect == Aspect::Focus) {
    widget_.setFocus();
  } else {
    Follow(aspect);
  }
}

void Mirror::FollowAll() {
  FollowState();
  Follow(Aspect::Rows);
  Follow(Aspect::Content);
  Follow(Aspect::Choice);
}

// The widgets lie in each other as the plain controls do, so the own state is enough.
void Mirror::FollowState() {
  widget_.setEnabled(control_.IsEnabled());
  if (widget_.isHidden() == control_.IsVisible()) widget_.setVisible(control_.IsVisible());
}

}  // namespace wheelwright
