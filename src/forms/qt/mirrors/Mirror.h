// A mirror binds a plain control and its widget: what the program changes shows on the widget, and
// what a person does to the widget is done to the plain control. It never decides anything.
#pragma once

#include "forms/EventEdge.h"
#include "screen/Control.h"

#include <functional>

#include <QObject>
#include <QWidget>

namespace wheelwright {

class Mirror {
 public:
  // The widget belongs to its parent widget; the mirror must go before the widget does.
  Mirror(Control& control, EventEdge& edge, QWidget& widget);
  Mirror(const Mirror&) = delete;
  Mirror& operator=(const Mirror&) = delete;
  virtual ~Mirror();

  QWidget& Widget() const { return widget_; }

 protected:
  // Brings the widget to what the plain control says; the state has been seen to already. Of most
  // controls nothing but the content changes.
  virtual void Follow(Aspect aspect) {
    if (aspect == Aspect::Content) FollowContent();
  }
  virtual void FollowContent() {}

  void FollowAll();
  // Does to the plain control what a person did to the widget.
  void ByHand(const std::function<void()>& action) { edge_.Enter(action); }
  // The receiver of the widget's signals: they end with the mirror.
  QObject* Receiver() { return &receiver_; }

 private:
  void Notice(Aspect aspect);
  void FollowState();

  Control& control_;
  EventEdge& edge_;
  QWidget& widget_;
  QObject receiver_;
};

// A mirror that knows of what kind its plain control and its widget are.
template <class ControlType, class WidgetType>
class MirrorOf : public Mirror {
 public:
  WidgetType& Widget() const { return widget_; }

 protected:
  MirrorOf(ControlType& plain, EventEdge& edge, WidgetType& widget)
      : Mirror(plain, edge, widget), plain_(plain), widget_(widget) {}

  ControlType& plain_;
  WidgetType& widget_;
};

}  // namespace wheelwright
