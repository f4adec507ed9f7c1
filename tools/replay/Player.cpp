#include "replay/Player.h"

#include "forms/Wiring.h"

#include <array>
#include <chrono>
#include <exception>
#include <utility>

namespace wheelwright::replay {

Player::Player(Stage& stage, Hands& hands, std::string appDirectory)
    : stage_(stage),
      actions_(stage, hands),
      questions_(stage, hands),
      appDirectory_(std::move(appDirectory)) {}

ExitCode Player::Play(std::istream& script, std::ostream& complaints) {
  std::string line;
  for (int number = 1; !HasEnded() && std::getline(script, line); ++number) {
    try {
      PlayLine(line);
    } catch (const std::exception& error) {
      complaints << "line " << number << ", " << line << ": " << error.what() << '\n';
      const auto* ofScript = dynamic_cast<const ScriptError*>(&error);
      return ofScript != nullptr ? ofScript->Code() : ExitCode::Fault;
    }
  }
  return ExitCode::Played;
}

// What needs no start-up comes first.
const Verb<Player>* Player::FindSetup(const ScriptLine& line) {
  static const std::array<Verb<Player>, 5> kVerbs = {{
      {{"setting", Form::ThreeTexts, {}}, &Player::Set},
      {{"start", Form::True, {}}, &Player::Start},
      {{"answer", Form::Answer, {}}, &Player::Answer},
      {{"settings", Form::True, {}}, &Player::TellSettings},
      {{"clock", Form::True, {}}, &Player::TellClock},
  }};
  return VerbOf<Player>(line, kVerbs);
}

void Player::PlayLine(const std::string& text) {
  if (text.find_first_not_of(" \t\r") == std::string::npos) return;
  const ScriptLine line(text);
  if (const auto* setup = FindSetup(line)) return (this->*setup->play)(line);
  if (const auto* action = Actions::Find(line)) return Act(*action, line);
  const auto* question = Questions::Find(line);
  if (question == nullptr) throw ScriptError("nothing that can be played");
  (questions_.*question->play)(line);
}

bool Player::HasEnded() const { return stage_.edge.HasFailed() || stage_.desktop.EndWasAsked(); }

void Player::Set(const ScriptLine& line) {
  const Json& setting = line.Value("setting");
  stage_.settings.Set(setting[0], setting[1], setting[2]);
}

void Player::Start(const ScriptLine& /*line*/) {
  if (started_) throw ScriptError("the session has been started already");
  started_ = true;
  stage_.edge.Enter([this] { StartUp(stage_.session, appDirectory_); });
  FinishEvent();
  if (!HasEnded()) stage_.session.main.SetVisible(true);
}

void Player::Answer(const ScriptLine& line) { stage_.desktop.answers.Add(line.Value("answer")); }

void Player::TellSettings(const ScriptLine& /*line*/) {
  Json sections(stage_.settings.Sections());
  stage_.lines.Print({{"settings", std::move(sections)}});
}

void Player::TellClock(const ScriptLine& /*line*/) {
  const auto now = std::chrono::steady_clock::now();
  const std::chrono::duration<double, std::milli> passed = now - stage_.clockTold;
  stage_.clockTold = now;
  stage_.lines.Print({{"clock", passed.count()}});
}

void Player::Act(const Verb<Actions>& action, const ScriptLine& line) {
  if (!started_) throw ScriptError("the session hasn't been started");
  (actions_.*action.play)(line);
  FinishEvent();
}

void Player::FinishEvent() {
  stage_.edge.RethrowKept();
  if (stage_.desktop.EndWasAsked() && !stage_.edge.HasFailed()) stage_.lines.Print({{"end", "quit"}});
}

}  // namespace wheelwright::replay
