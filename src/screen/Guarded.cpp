#include "screen/Guarded.h"

namespace wheelwright {

void Guarded(Session& session, const std::function<void()>& steps,
             const std::function<void()>& atOnce) {
  try {
    steps();
  } catch (...) {
    const Failure failure = FailureInFlight();
    Run(atOnce);
    if (!failure.IsCancel()) session.desktop.ShowError(failure.Message());
  }
}

}  // namespace wheelwright
