// The three real windows of a session and everything in them. They follow the plain windows from
// the moment they are built; each is on screen while its plain window is visible.
#pragma once

#include "forms/EventEdge.h"
#include "forms/qt/mirrors/MirrorSet.h"
#include "screen/Session.h"

namespace wheelwright {

class WindowSet {
 public:
  // Needs the toolkit's application object. The session and the edge outlive the windows.
  WindowSet(Session& session, EventEdge& edge);

  // No window asks for more room than this: what is in it can be scrolled then.
  void FitInto(QSize room);

  // The real window of a plain one of this session.
  QWidget& Of(const Window& window) const;

  // The widget of a plain control of this session.
  QWidget& Of(const Control& control) const { return mirrors_.Of(control).Widget(); }

 private:
  // In this order, so that each goes before what it relies on: mirrors before widgets, windows
  // before their owner.
  Session& session_;
  std::unique_ptr<QWidget> main_;
  std::unique_ptr<QWidget> error_;
  std::unique_ptr<QWidget> exporter_;
  MirrorSet mirrors_;
};

}  // namespace wheelwright
