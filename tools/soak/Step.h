// One thing that a person does, with the answers to what the program will ask on the way.
#pragma once

#include "replay/Json.h"

#include <string>
#include <vector>

namespace wheelwright::soak {

using replay::Json;

struct Step {
  std::string verb;     // "click"
  std::string control;  // as scripts name it: "cmdOpen", "frmExport.cmdAdd"
  Json action;          // {"click": "cmdOpen"}
  bool isForced = false;
  std::vector<Json> answers;

  bool Clicks(const std::string& button) const { return verb == "click" && control == button; }
  // The file that the last answer chooses, empty if it chooses none.
  std::string File() const {
    const bool chooses = !answers.empty() && answers.back().is_object();
    return chooses ? answers.back()["file"].get<std::string>() : "";
  }
};

}  // namespace wheelwright::soak
