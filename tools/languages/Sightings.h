// Where each entry of the language table comes up, asked of the windows themselves: the program
// applies a table of marked entries, and what then shows a mark is read off.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace wheelwright::languages {

// The entries that the program looks at; it keeps a few more.
inline constexpr std::size_t kUsedEntries = 182;

enum class Use { Button, Label, Hint, Frame, Tab, Row, Column };

struct Sighting {
  std::size_t entry = 0;
  Use use = Use::Label;
  std::string control;  // the control's name, that of another window than the main one in front

  bool operator==(const Sighting&) const = default;
};

// What a person has in sight at one time: one window, the main one with one page in front, for one
// kind of vehicle. Buttons that the program keeps hidden are among it.
using View = std::vector<Sighting>;

std::vector<View> AllViews();

// Every entry that comes up in a window, with the first place where it does. The others are texts
// of messages and file dialogs.
std::map<std::size_t, Sighting> SightingsByEntry(const std::vector<View>& views);

}  // namespace wheelwright::languages
