// What of a text can be typed.
#pragma once

#include <string>
#include <vector>

namespace wheelwright::replay {

// The characters of a UTF-8 text, each as a text of its own, without those that are no keys: the
// control characters 0 to 1F and 7F to 9F.
std::vector<std::string> KeysOf(const std::string& utf8);

}  // namespace wheelwright::replay
