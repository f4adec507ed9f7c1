// What holds for numbers in texts.
#pragma once

#include <string>

namespace wheelwright::fuzz {

void RequireNumberLaws(const std::string& text);

}  // namespace wheelwright::fuzz
