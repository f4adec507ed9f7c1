// The edge of Qt's event loop: what no handler caught is shown in a box and ends the program with
// exit code 1.
#pragma once

#include "forms/EventEdge.h"

namespace wheelwright {

class QtEdge : public EventEdge {
 public:
  // Whether a failure has ended the program; the event loop, if it runs, ends soon.
  bool HasFailed() const { return hasFailed_; }

 protected:
  void EndByFailure(const Failure& failure) override;
  void EndByOtherException() override;

 private:
  void End(const std::string& description);

  bool hasFailed_ = false;
};

}  // namespace wheelwright
