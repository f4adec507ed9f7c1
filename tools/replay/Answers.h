// The answers that wait for the program's questions, in the order of the script.
#pragma once

#include "replay/Json.h"

#include <deque>
#include <string>

namespace wheelwright::replay {

class Answers {
 public:
  void Add(Json answer) { waiting_.push_back(std::move(answer)); }

  // The next answer to a box with Yes and No, "yes" or "no". Throws ScriptError if none is waiting
  // or the next one is for a file dialog; `question` says what was asked.
  std::string TakeYesOrNo(const std::string& question);
  // The next answer to a file dialog, "cancel" or an object with "file" and perhaps "filter".
  Json TakeFile(const std::string& title);

 private:
  Json Take(const std::string& question);

  std::deque<Json> waiting_;
};

}  // namespace wheelwright::replay
