// What must hold for everything that a person can bring on screen: one view at a time.
#pragma once

#include "forms/qt/QtPrinters.h"
#include "forms/qt/layout/WindowSet.h"
#include "screen/Session.h"

#include <set>
#include <vector>

#include <QAccessible>

namespace wheelwright::testing {

// A window, all laid out, with one of its tabs in front.
struct View {
  const WindowSet& windows;
  const FrmMain& main;
  const Window& plain;
  QWidget& window;
  std::vector<const Control*> showing;

  QWidget& Of(const Control& control) const { return windows.Of(control); }
  bool IsMain() const { return &plain == &main; }
};

struct ViewCheck {
  const char* what;
  void (*run)(const View& view);
};

// In every language and with every size of the font.
extern const std::vector<ViewCheck> kLayoutChecks;
// In every language.
extern const std::vector<ViewCheck> kAccessibilityChecks;
extern const std::vector<ViewCheck> kAccessibleTreeChecks;
// On every desktop.
extern const std::vector<ViewCheck> kContrastChecks;

// In the window's coordinates.
inline QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

// Some systems speak a combo box's text first and find its name by its label.
QString SpokenName(const QAccessibleInterface& object);

// How far the tops of two rows that follow each other are apart, on the pages that show.
std::set<int> RowDistances(const View& view);

}  // namespace wheelwright::testing
