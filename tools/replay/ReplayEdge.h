// Where the events of a replayed session enter the program.
#pragma once

#include "forms/EventEdge.h"
#include "replay/ResultLines.h"

#include <exception>

namespace wheelwright::replay {

class ReplayEdge : public EventEdge {
 public:
  explicit ReplayEdge(ResultLines& lines) : lines_(lines) {}

  // Whether a failure that nothing caught has ended the program.
  bool HasFailed() const { return hasFailed_; }

  // Throws what the last event left behind that was no failure of the program's own, such as a
  // ScriptError of a question that found no answer.
  void RethrowKept();

 protected:
  void EndByFailure(const Failure& failure) override;
  void EndByOtherException() override { kept_ = std::current_exception(); }

 private:
  ResultLines& lines_;
  bool hasFailed_ = false;
  std::exception_ptr kept_;
};

}  // namespace wheelwright::replay
