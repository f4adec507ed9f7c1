// The two lines on top of every game file and export file that the program writes.
#pragma once

#include "core/Version.h"

#include <string>

namespace wheelwright {

// What the first line begins with, behind the format's comment mark.
inline constexpr const char* kBannerText = " File created with Wheelwright V";

// "; File created with Wheelwright V" for the mark ";": by this beginning an old banner is known.
inline std::string BannerBeginning(char mark) { return mark + std::string(kBannerText); }

inline std::string BannerLine(char mark) { return BannerBeginning(mark) + VersionText(); }

inline std::string HomePageLine(char mark) { return mark + std::string(" Homepage: ") + kHomePage; }

}  // namespace wheelwright
