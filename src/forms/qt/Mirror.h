// A mirror binds a plain control and its widget: what the program changes shows on the widget, and
// what a person does to the widget is done to the plain control. It never decides anything.
#pragma once

#include "forms/EventEdge.h"
#include "screen/Control.h"

#include <functional>
#include <string>

#include <QObject>
#include <QString>
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

  // What the widget shows otherwise than the plain control says; empty if they agree.
  std::string Difference() const;

 protected:
  // Brings the widget to what the plain control says; the state has been seen to already.
  virtual void Follow(Aspect aspect) = 0;
  // The difference in everything but the state.
  virtual std::string ContentDifference() const = 0;

  void FollowAll();
  // Does to the plain control what a person did to the widget.
  void ByHand(const std::function<void()>& action) { edge_.Enter(action); }
  // The receiver of the widget's signals: they end with the mirror.
  QObject* Receiver() { return &receiver_; }

  // "" if both are the same, otherwise both, named.
  static std::string Compare(const char* what, const QString& shown, const QString& meant);
  static std::string Compare(const char* what, int shown, int meant);

 private:
  void Notice(Aspect aspect);
  void FollowState();
  std::string StateDifference() const;

  Control& control_;
  EventEdge& edge_;
  QWidget& widget_;
  QObject receiver_;
};

}  // namespace wheelwright
