#include "forms/EventEdge.h"

namespace wheelwright {

void EventEdge::Enter(const std::function<void()>& event) {
  if (ended_) return;
  try {
    try {
      event();
    } catch (...) {
      ended_ = true;
      EndByFailure(FailureInFlight());
    }
  } catch (...) {
    EndByOtherException();
  }
}

}  // namespace wheelwright
