// The actions of a script: what a person does at the windows.
#pragma once

#include "replay/Hands.h"
#include "replay/PlainHands.h"
#include "replay/ScriptLine.h"
#include "replay/Stage.h"
#include "replay/Verb.h"

#include <string>
#include <vector>

namespace wheelwright::replay {

class Actions {
 public:
  Actions(Stage& stage, Hands& hands) : stage_(stage), hands_(hands), forcedHands_(stage.edge) {}

  // The action of the line, null if it is none.
  static const Verb<Actions>* Find(const ScriptLine& line);

 private:
  void Click(const ScriptLine& line);
  void Type(const ScriptLine& line);
  void Append(const ScriptLine& line);
  void Erase(const ScriptLine& line);
  void Pick(const ScriptLine& line);
  void Tick(const ScriptLine& line);
  void Scroll(const ScriptLine& line);
  void ClickRow(const ScriptLine& line);
  void Mark(const ScriptLine& line);
  // Marks exactly these rows of the list that the verb names.
  void MarkRows(const ScriptLine& line, const char* verb, const std::vector<int>& rows);
  void ClickTab(const ScriptLine& line);
  void Close(const ScriptLine& line);

  template <class Kind>
  Kind& Named(const ScriptLine& line, const char* verb);
  // The hands that do an action at the control, with its tab in front; null, with the refusal
  // printed, if a person could not use the control now.
  Hands* HandsAt(const Control& control, const ScriptLine& line);
  Hands* HandsAt(const Window& window, const ScriptLine& line);
  Hands* Refuse(const std::string& name);

  Stage& stage_;
  Hands& hands_;
  PlainHands forcedHands_;
};

}  // namespace wheelwright::replay
