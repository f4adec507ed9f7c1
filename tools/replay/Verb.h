// The verbs of script lines, each with the member function that plays it.
#pragma once

#include "replay/ScriptLine.h"

namespace wheelwright::replay {

template <class Player>
struct Verb {
  VerbForm form;
  void (Player::*play)(const ScriptLine&);
};

// The verb of the line among those of a table, null if it is none of them. A key that is a verb of
// its own and a part of another ("row" of "pick") stands behind that other in the table. Throws
// ScriptError for a line of one of the verbs that isn't of its form.
template <class Player, class Table>
const Verb<Player>* VerbOf(const ScriptLine& line, const Table& table) {
  for (const Verb<Player>& verb : table) {
    if (line.Is(verb.form)) return &verb;
  }
  return nullptr;
}

}  // namespace wheelwright::replay
