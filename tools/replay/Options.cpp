#include "replay/Options.h"

#include <cstdio>

namespace wheelwright::replay {

std::optional<Options> OptionsFrom(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--plain") {
      options.plain = true;
    } else if (arguments[i] == "--dark") {
      options.dark = true;
    } else if (arguments[i] == "--screen" && i + 1 < arguments.size()) {
      if (std::sscanf(arguments[++i].c_str(), "%dx%d", &options.screenWidth, &options.screenHeight) != 2) {
        return std::nullopt;
      }
    } else if (arguments[i] == "--app" && i + 1 < arguments.size()) {
      options.appDirectory = arguments[++i];
    } else {
      return std::nullopt;
    }
  }
  if (options.appDirectory.empty()) return std::nullopt;
  return options;
}

}  // namespace wheelwright::replay
