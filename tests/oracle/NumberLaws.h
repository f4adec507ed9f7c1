// What holds for numbers in texts.
#pragma once

#include <string>

namespace wheelwright::testing {

void RequireNumberLaws(const std::string& text);

}  // namespace wheelwright::testing
