#include "replay/ReplayEdge.h"

#include <utility>

namespace wheelwright::replay {

void ReplayEdge::RethrowKept() {
  if (kept_) std::rethrow_exception(std::exchange(kept_, nullptr));
}

void ReplayEdge::EndByFailure(const Failure& failure) {
  hasFailed_ = true;
  lines_.Print(
      {{"end", "failure"}, {"number", static_cast<int>(failure.Number())}, {"text", failure.Description()}});
}

}  // namespace wheelwright::replay
