#include "soak/Options.h"
#include "soak/Soak.h"

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
