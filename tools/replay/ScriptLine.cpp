#include "replay/ScriptLine.h"

#include "replay/ScriptError.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace wheelwright::replay {
namespace {

// A number that is whole only in its value, such as 2.0, isn't taken.
bool IsWhole(const Json& value, std::int64_t lowest) {
  if (!value.is_number_integer()) return false;
  constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
  if (value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t{kHighest}) return false;
  return value.get<std::int64_t>() >= lowest && value.get<std::int64_t>() <= kHighest;
}

bool IsCount(const Json& value) { return IsWhole(value, 0); }
bool IsAnyWhole(const Json& value) { return IsWhole(value, std::numeric_limits<int>::min()); }
bool IsText(const Json& value) { return value.is_string(); }

bool IsFileAnswer(const Json& value) {
  if (!value.is_object() || !value.contains("file") || !IsText(value["file"])) return false;
  if (!value.contains("filter")) return value.size() == 1;
  return value.size() == 2 && IsCount(value["filter"]);
}

bool IsAnswer(const Json& value) {
  return value == "yes" || value == "no" || value == "cancel" || IsFileAnswer(value);
}

bool Fits(const Json& value, Form form) {
  switch (form) {
    case Form::True:
      return value == true;
    case Form::Boolean:
      return value.is_boolean();
    case Form::Text:
      return IsText(value);
    case Form::Whole:
      return IsAnyWhole(value);
    case Form::Count:
      return IsCount(value);
    case Form::Rows:
      return value.is_array() && std::all_of(value.begin(), value.end(), IsAnyWhole);
    case Form::ThreeTexts:
      return value.is_array() && value.size() == 3 && std::all_of(value.begin(), value.end(), IsText);
    case Form::Answer:
      return IsAnswer(value);
  }
  return false;
}

Json Parsed(const std::string& text) {
  try {
    return Json::parse(text);
  } catch (const Json::exception& error) {
    throw ScriptError(error.what());
  }
}

void CheckPart(const Json& value, const std::string& key, Form form) {
  if (!Fits(value, form)) throw ScriptError("the value of \"" + key + "\" can't be understood");
}

}  // namespace

ScriptLine::ScriptLine(const std::string& text) : object_(Parsed(text)) {
  if (!object_.is_object() || object_.empty()) throw ScriptError("a line is an object");
}

bool ScriptLine::Is(const VerbForm& form) const {
  if (!Has(form.verb)) return false;
  CheckPart(object_[form.verb], form.verb, form.form);
  std::size_t known = 1;
  for (const Part& part : form.parts) {
    if (Has(part.key)) {
      CheckPart(object_[part.key], part.key, part.form);
      ++known;
    } else if (part.isNeeded) {
      throw ScriptError(std::string("\"") + part.key + "\" is missing");
    }
  }
  if (known != object_.size()) throw ScriptError("the line has a key that can't be understood");
  return true;
}

}  // namespace wheelwright::replay
