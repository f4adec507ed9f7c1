// The result of a replay: an object a line, flushed at once.
#pragma once

#include "replay/Json.h"

#include <ostream>

namespace wheelwright::replay {

class ResultLines {
 public:
  explicit ResultLines(std::ostream& out) : out_(out) {}

  void Print(const Json& line) {
    out_ << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
  }

 private:
  std::ostream& out_;
};

}  // namespace wheelwright::replay
