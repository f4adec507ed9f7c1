// What came out of a step.
#pragma once

#include "soak/Step.h"

#include <string>
#include <vector>

namespace wheelwright::soak {

class StepResult {
 public:
  // The result's lines.
  explicit StepResult(const std::string& text);

  // How many questions and dialogs took an answer.
  std::size_t Asked() const;
  // Whether a box was answered with No or a dialog cancelled.
  bool WasDeclined() const;
  bool WasRefused() const;
  // "quit", "failure", or empty while the program goes on.
  std::string End() const;
  bool ShowedError() const;
  bool ShowedInformation() const;

 private:
  bool HasBox(const std::string& kind) const;

  std::vector<Json> lines_;
};

}  // namespace wheelwright::soak
