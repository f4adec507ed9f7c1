// One random session on the plain controls, with the laws checked after every step.
#pragma once

#include "soak/Folder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace wheelwright::soak {

// All that is needed to play a session again, and what came out.
struct Recording {
  std::uint64_t seed = 0;
  Files before;
  std::vector<std::string> script;
  std::string result;
  Files after;
  std::string complaint;  // empty while all is well
};

// Whether a script asks for all that is shown, now and then and at its end. The laws need no such
// questions; a script to be played on other windows does.
enum class Questions { None, Many };

// The session of the seed, played in the folder.
Recording PlayPlainly(std::uint64_t seed, const Folder& folder, Questions questions);

}  // namespace wheelwright::soak
