#include "replay/Answers.h"

#include "replay/ScriptError.h"

namespace wheelwright::replay {
namespace {

ScriptError WrongAnswer(const Json& answer, const std::string& question) {
  return ScriptError(answer.dump() + " is no answer to \"" + question + "\"");
}

}  // namespace

std::string Answers::TakeYesOrNo(const std::string& question) {
  Json answer = Take(question);
  if (answer != "yes" && answer != "no") throw WrongAnswer(answer, question);
  return answer.get<std::string>();
}

Json Answers::TakeFile(const std::string& title) {
  Json answer = Take(title);
  if (answer != "cancel" && !answer.is_object()) throw WrongAnswer(answer, title);
  return answer;
}

Json Answers::Take(const std::string& question) {
  if (waiting_.empty()) {
    throw ScriptError("no answer is waiting for \"" + question + "\"", ExitCode::NoAnswerWaiting);
  }
  Json answer = std::move(waiting_.front());
  waiting_.pop_front();
  return answer;
}

}  // namespace wheelwright::replay
