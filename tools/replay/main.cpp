#include "core/DiskFiles.h"
#include "replay/Options.h"
#include "replay/PlainScreen.h"
#include "replay/Player.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#ifdef WHEELWRIGHT_REAL_WINDOWS
#include "replay/RealScreen.h"
#include "replay/Toolkit.h"
#endif
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace wheelwright::replay {
namespace {

// Line ends go through unchanged on every system.
void UseBytesAsTheyAre() {
#ifdef _WIN32
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  std::ios::sync_with_stdio(false);
}

std::string InUtf8(const char* argument) {
  const std::u8string text = std::filesystem::path(argument).u8string();
  return {text.begin(), text.end()};
}

template <class Screen>
ExitCode PlayOn(Screen& screen, const std::string& appDirectory) {
  Player player(screen.stage, screen.hands, appDirectory);
  return player.Play(std::cin, std::cerr);
}

ExitCode PlayOnRealWindows(const Options& options) {
#ifdef WHEELWRIGHT_REAL_WINDOWS
  const Toolkit toolkit(options.dark);
  RealScreen screen(std::cout);
  if (options.screenWidth > 0) screen.Fill({options.screenWidth, options.screenHeight});
  return PlayOn(screen, options.appDirectory);
#else
  static_cast<void>(options);
  std::cerr << "this replay was built without real windows and plays with --plain alone\n";
  return ExitCode::NotUnderstood;
#endif
}

ExitCode Replay(const std::vector<std::string>& arguments) {
  const std::optional<Options> options = OptionsFrom(arguments);
  if (!options) {
    std::cerr << kUsage;
    return ExitCode::NotUnderstood;
  }
  if (!options->plain) return PlayOnRealWindows(*options);
  PlainScreen screen(std::cout);
  return PlayOn(screen, options->appDirectory);
}

}  // namespace
}  // namespace wheelwright::replay

int main(int count, char** arguments) {
  using namespace wheelwright::replay;
  wheelwright::LetWritesFail();
  UseBytesAsTheyAre();
  std::vector<std::string> texts;
  for (int i = 1; i < count; ++i) texts.push_back(InUtf8(arguments[i]));
  return static_cast<int>(Replay(texts));
}
