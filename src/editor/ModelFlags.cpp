#include "editor/ModelFlags.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace wheelwright {
namespace {

constexpr std::size_t kDigits = 7;
constexpr int kFlagsOfAGroup = 4;
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr int kFlagWithoutMark = 3;

std::size_t FirstBoxOf(int group) { return static_cast<std::size_t>((group - 1) * kFlagsOfAGroup); }

void TickBoxes(FrmMain& main, int group, char digit) {
  const std::size_t value = kHexDigits.find(digit);
  if (value == std::string_view::npos) return;
  for (std::size_t bit = 0; bit < kFlagsOfAGroup; ++bit) {
    if ((value >> bit) % 2 == 1) main.chkFlag[FirstBoxOf(group) + bit].SetState(1);
  }
}

}  // namespace

void ShowModelFlags(Session& session) {
  Vars& vars = session.vars;
  const std::string text = vars.ShownCar().ModelFlags;
  for (CheckBox& box : session.main.chkFlag) box.SetState(0);
  const std::string padded = SpreadModelFlags(session.main, text);
  vars.ShownCar().ModelFlags = padded;
}

std::string SpreadModelFlags(FrmMain& main, std::string text) {
  if (text.size() < kDigits) text.insert(0, kDigits - text.size(), '0');
  for (int group = 1; group <= static_cast<int>(kDigits); ++group) {
    TickBoxes(main, group, text[kDigits - static_cast<std::size_t>(group)]);
  }
  return text;
}

std::string GetFlagDigit(const FrmMain& main, int group) {
  std::size_t value = 0;
  for (std::size_t bit = 0; bit < kFlagsOfAGroup; ++bit) {
    const int state = main.chkFlag[FirstBoxOf(group) + bit].State();
    if (state != 0 && state != 1) return {};
    value += static_cast<std::size_t>(state) << bit;
  }
  return std::string(1, kHexDigits[value]);
}

void StoreFlag(Session& session, int flag) {
  Vars& vars = session.vars;
  const int group = (flag - 1) / kFlagsOfAGroup + 1;
  const std::string flags = vars.ShownCar().ModelFlags;
  // The lengths of the two parts hang on the group alone, whatever the length of the text.
  const std::size_t left = kDigits - static_cast<std::size_t>(group);
  const std::size_t right = std::min(flags.size(), static_cast<std::size_t>(group) - 1);
  vars.ShownCar().ModelFlags =
      flags.substr(0, left) + GetFlagDigit(session.main, group) + flags.substr(flags.size() - right);
  if (flag != kFlagWithoutMark) vars.IsSaved = false;
}

}  // namespace wheelwright
