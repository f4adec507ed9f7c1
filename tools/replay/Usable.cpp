#include "replay/Usable.h"

namespace wheelwright::replay {

bool CanBeUsedNow(const Control& control) {
  return control.IsEnabledHere() && control.IsVisibleHere() && control.Owner().IsVisible();
}

}  // namespace wheelwright::replay
