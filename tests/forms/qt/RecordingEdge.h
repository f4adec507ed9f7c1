// An edge that writes down what would end the program.
#pragma once

#include "forms/EventEdge.h"

#include <string>
#include <vector>

namespace wheelwright::testing {

class RecordingEdge : public EventEdge {
 public:
  std::vector<std::string> ends;

 protected:
  void EndByFailure(const Failure& failure) override { ends.push_back(failure.Description()); }
  void EndByOtherException() override { ends.emplace_back("exception"); }
};

}  // namespace wheelwright::testing
