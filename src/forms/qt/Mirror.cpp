#include "forms/qt/Mirror.h"

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

std::string Mirror::Difference() const {
  const std::string state = StateDifference();
  return state.empty() ? ContentDifference() : state;
}

std::string Mirror::StateDifference() const {
  if (widget_.isHidden() == control_.IsVisible()) {
    return Compare("visible", !widget_.isHidden(), control_.IsVisible());
  }
  return Compare("enabled", widget_.isEnabled(), control_.IsEnabledHere());
}

std::string Mirror::Compare(const char* what, const QString& shown, const QString& meant) {
  if (shown == meant) return "";
  return std::string(what) + " \"" + shown.toStdString() + "\" instead of \"" +
         meant.toStdString() + "\"";
}

std::string Mirror::Compare(const char* what, int shown, int meant) {
  return Compare(what, QString::number(shown), QString::number(meant));
}

}  // namespace wheelwright
