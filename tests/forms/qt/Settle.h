// Lets the toolkit do all that it has put off.
#pragma once

#include <QCoreApplication>

namespace wheelwright::testing {

// A layout asks for the next one: of the window, of the view in it, of the view with its scroll
// bar.
inline void Settle() {
  constexpr int kSteps = 4;
  for (int step = 0; step < kSteps; ++step) QCoreApplication::processEvents();
}

}  // namespace wheelwright::testing
