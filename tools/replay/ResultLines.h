// The result of a replay: an object a line, flushed at once.
#pragma once

#include "replay/Json.h"

#include <ostream>
#include <stdexcept>

namespace wheelwright::replay {

class ResultLines {
 public:
  explicit ResultLines(std::ostream& out) : out_(out) {}

  void Print(const Json& line) {
    out_ << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
    if (!out_) throw std::runtime_error("the result can't be written");
  }

 private:
  std::ostream& out_;
};

}  // namespace wheelwright::replay
