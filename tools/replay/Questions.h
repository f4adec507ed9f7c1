// The questions of a script to the session.
#pragma once

#include "replay/Hands.h"
#include "replay/ScriptLine.h"
#include "replay/Stage.h"
#include "replay/Verb.h"

#include <string>

namespace wheelwright::replay {

class Questions {
 public:
  Questions(Stage& stage, Hands& hands) : stage_(stage), hands_(hands) {}

  // The question of the line, null if it is none.
  static const Verb<Questions>* Find(const ScriptLine& line);

 private:
  void Get(const ScriptLine& line);
  void TellVars(const ScriptLine& line);
  void TellTable(const ScriptLine& line);
  void TellLang(const ScriptLine& line);
  void TellPointer(const ScriptLine& line);
  void Shoot(const ScriptLine& line);

  void TellAll();
  // Throws ScriptError with the code of its own if the real screen shows something else.
  void Tell(const Control& control);

  Stage& stage_;
  Hands& hands_;
};

}  // namespace wheelwright::replay
