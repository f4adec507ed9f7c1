// A line of a script, such as {"scroll": "HScroll1", "value": 200}: a verb, which is the key that
// says what the line is, with its value, and further parts.
#pragma once

#include "replay/Json.h"

#include <string>
#include <vector>

namespace wheelwright::replay {

// What the value of a verb or part may be.
enum class Form {
  True,
  Boolean,
  Text,
  Whole,       // a whole number that fits an int
  Count,       // the same from 0 on
  Rows,        // a list of whole numbers
  ThreeTexts,  // section, key and value of a setting
  Answer,      // "yes", "no", "cancel" or {"file": TEXT, "filter": COUNT}
};

struct Part {
  const char* key = "";
  Form form = Form::Text;
  bool isNeeded = true;
};

// The parts that a verb takes; every other key isn't understood.
struct VerbForm {
  const char* verb = "";
  Form form = Form::Text;
  std::vector<Part> parts;
};

class ScriptLine {
 public:
  // Throws ScriptError for a text that is no JSON object.
  explicit ScriptLine(const std::string& text);

  // Whether the line has the verb's key. Throws ScriptError if it has and the rest of the line
  // isn't of the form.
  bool Is(const VerbForm& form) const;

  bool Has(const char* key) const { return object_.contains(key); }
  // The values of parts whose form has been checked.
  bool Boolean(const char* key) const { return object_.value(key, false); }
  std::string Text(const char* key) const { return object_.at(key).get<std::string>(); }
  int Whole(const char* key) const { return object_.at(key).get<int>(); }
  const Json& Value(const char* key) const { return object_.at(key); }

 private:
  Json object_;
};

}  // namespace wheelwright::replay
