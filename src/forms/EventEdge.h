// Where events of a toolkit, or of a replayed session, enter the program. No exception leaves it.
#pragma once

#include "core/Failure.h"

#include <functional>

namespace wheelwright {

class EventEdge {
 public:
  EventEdge() = default;
  EventEdge(const EventEdge&) = delete;
  EventEdge& operator=(const EventEdge&) = delete;
  virtual ~EventEdge() = default;

  // Runs what an event asks for. A failure that nothing caught on the way ends the program; from
  // then on events are ignored.
  void Enter(const std::function<void()>& event) {
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

 protected:
  // The failure that ends the program.
  virtual void EndByFailure(const Failure& failure) = 0;
  // An exception that is no failure, to be looked at inside the call with std::current_exception.
  virtual void EndByOtherException() = 0;

 private:
  bool ended_ = false;
};

}  // namespace wheelwright
