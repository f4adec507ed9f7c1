#include "soak/StepResult.h"

#include <algorithm>
#include <sstream>

namespace wheelwright::soak {

StepResult::StepResult(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) lines_.push_back(Json::parse(line));
}

std::size_t StepResult::Asked() const {
  const auto asked = [](const Json& line) { return line.contains("answer"); };
  return static_cast<std::size_t>(std::count_if(lines_.begin(), lines_.end(), asked));
}

bool StepResult::WasDeclined() const {
  const auto declined = [](const Json& line) {
    return line.contains("answer") && (line["answer"] == "no" || line["answer"] == "cancel");
  };
  return std::any_of(lines_.begin(), lines_.end(), declined);
}

bool StepResult::WasRefused() const { return !lines_.empty() && lines_.front().contains("refused"); }

std::string StepResult::End() const {
  const bool hasEnded = !lines_.empty() && lines_.back().contains("end");
  return hasEnded ? lines_.back()["end"].get<std::string>() : "";
}

bool StepResult::ShowedError() const { return HasBox("error"); }

bool StepResult::ShowedInformation() const { return HasBox("information"); }

bool StepResult::HasBox(const std::string& kind) const {
  const auto isIt = [&](const Json& line) { return line.contains("box") && line["box"] == kind; };
  return std::any_of(lines_.begin(), lines_.end(), isIt);
}

}  // namespace wheelwright::soak
