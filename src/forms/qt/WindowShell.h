// What the three real windows have in common: title, coming and going, and the close box.
#pragma once

#include "forms/EventEdge.h"
#include "screen/Control.h"

#include <QWidget>

namespace wheelwright {

class WindowShell : public QWidget {
 public:
  // A window with an owner stays above it and is none the less not modal; Escape closes it as its
  // close box does.
  WindowShell(Window& window, EventEdge& edge, QWidget* owner);
  ~WindowShell() override;

 protected:
  // Asks the plain window's handler; the window only goes if the plain one has gone.
  void closeEvent(QCloseEvent* event) override;

 private:
  void Follow();

  Window& window_;
  EventEdge& edge_;
};

// What a box or dialog belongs to: the active window or else, if it is shown, the one that owns the
// others. No window is active just after a box has gone, or while another program is used.
QWidget* WindowInUse();

}  // namespace wheelwright
