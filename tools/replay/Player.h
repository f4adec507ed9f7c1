// Plays a script: what a person would do at the windows goes in, what the program shows and does
// comes out.
//
//   Stage stage(result, PlainPictureSize);
//   PlainHands hands(stage.edge);
//   Player player(stage, hands, "/app");
//   player.Play(script);
#pragma once

#include "replay/Actions.h"
#include "replay/Questions.h"
#include "replay/ScriptError.h"
#include "replay/Stage.h"
#include "replay/Verb.h"

#include <istream>
#include <ostream>
#include <string>

namespace wheelwright::replay {

class Player {
 public:
  // `appDirectory` is the program's directory, UTF-8.
  Player(Stage& stage, Hands& hands, std::string appDirectory);

  // Plays until the script or the program ends. Whatever ends the replay early is told to
  // `complaints` with the line it happened in.
  ExitCode Play(std::istream& script, std::ostream& complaints);

  // Plays one line. Throws ScriptError; must not be called once the program has ended.
  void PlayLine(const std::string& text);

  bool HasEnded() const;

 private:
  static const Verb<Player>* FindSetup(const ScriptLine& line);

  void Set(const ScriptLine& line);
  void Start(const ScriptLine& line);
  void Answer(const ScriptLine& line);
  void TellSettings(const ScriptLine& line);
  void TellClock(const ScriptLine& line);

  void Act(const Verb<Actions>& action, const ScriptLine& line);
  void FinishEvent();

  Stage& stage_;
  Actions actions_;
  Questions questions_;
  std::string appDirectory_;
  bool started_ = false;
};

}  // namespace wheelwright::replay
