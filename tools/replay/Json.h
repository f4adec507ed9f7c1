// The JSON of scripts and results: objects keep the order of their keys.
#pragma once

#include <nlohmann/json.hpp>

namespace wheelwright::replay {

using Json = nlohmann::ordered_json;

}  // namespace wheelwright::replay
