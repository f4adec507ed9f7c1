#include "soak/Options.h"

#include <exception>

namespace wheelwright::soak {

std::optional<Options> OptionsFrom(const std::vector<std::string>& arguments) {
  if (arguments.size() != 4) return std::nullopt;
  Options options;
  options.onWidgets = arguments[0] == "widgets";
  if (!options.onWidgets && arguments[0] != "plain") return std::nullopt;
  try {
    options.seconds = std::stod(arguments[1]);
    options.seed = std::stoull(arguments[2]);
  } catch (const std::exception&) {
    return std::nullopt;
  }
  options.findings = arguments[3];
  return options;
}

}  // namespace wheelwright::soak
