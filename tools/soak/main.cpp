#include "soak/Soak.h"

#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#ifdef WHEELWRIGHT_REAL_WINDOWS
#include "replay/Toolkit.h"
#include "soak/WidgetSession.h"
#endif

namespace wheelwright::soak {
namespace {

constexpr int kFound = 1;
constexpr int kNotUnderstood = 2;

constexpr const char* kUsage =
    "usage: wheelwright-soak plain|widgets SECONDS SEED FINDINGS\n"
    "\n"
    "Plays random sessions, the first with the seed, each further one with the next number. With\n"
    "\"widgets\" each is played on the plain controls and then on the real windows.\n";

// Nothing for a command line that can't be understood.
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

int SoakOnWidgets(const Options& options) {
#ifdef WHEELWRIGHT_REAL_WINDOWS
  const replay::Toolkit toolkit;
  return Soak(options, ReplayOnWidgets, std::cout) ? 0 : kFound;
#else
  static_cast<void>(options);
  std::cerr << "these sessions were built without real windows\n";
  return kNotUnderstood;
#endif
}

int SoakAsToldBy(const std::vector<std::string>& arguments) {
  const std::optional<Options> options = OptionsFrom(arguments);
  if (!options) {
    std::cerr << kUsage;
    return kNotUnderstood;
  }
  if (options->onWidgets) return SoakOnWidgets(*options);
  return Soak(*options, {}, std::cout) ? 0 : kFound;
}

}  // namespace
}  // namespace wheelwright::soak

int main(int count, char** arguments) {
  return wheelwright::soak::SoakAsToldBy({arguments + 1, arguments + count});
}
