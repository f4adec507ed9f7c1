// What ends a replay early, with the exit code that tells why.
#pragma once

#include <stdexcept>
#include <string>

namespace wheelwright::replay {

enum class ExitCode {
  Played = 0,
  Fault = 1,  // of the program or the replay itself
  NotUnderstood = 2,
  NoAnswerWaiting = 3,
  ScreenDiffers = 4,  // the real screen shows something else than the program thinks
};

class ScriptError : public std::runtime_error {
 public:
  explicit ScriptError(const std::string& why, ExitCode code = ExitCode::NotUnderstood)
      : std::runtime_error(why), code_(code) {}

  ExitCode Code() const { return code_; }

 private:
  ExitCode code_;
};

}  // namespace wheelwright::replay
