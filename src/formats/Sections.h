// What the program writes into files that it doesn't own: its banner, and a table in the place of
// the lines of a section.
#pragma once

#include "core/Version.h"

#include <functional>
#include <string>
#include <string_view>

namespace wheelwright {

// The two lines on top of every file that the program writes, behind the comment mark of its
// format.
class Banner {
 public:
  explicit Banner(char mark);

  // "; File created with Wheelwright V1.0.0" and "; Homepage: https://wheelwright.example/", each
  // with its line end.
  std::string Text() const;

  // Whether the line holds a banner of any version at or behind a position, ignoring case.
  bool IsIn(std::string_view line, std::size_t from = 0) const;

 private:
  std::string beginning_;  // the first line without the version
  std::string homePage_;
  std::string foldedBeginning_;
  std::string foldedHomePage_;
};

// How a writer finds its section, which lasts until a line that begins with "end".
struct SectionRules {
  std::string_view opening;    // what the line in front of the section begins with
  std::size_t commentColumns;  // a "#" in these first columns makes a comment, which is copied
  bool hasBanner;              // on top of the text; then older banners among the comments go
  bool onlyOnce;               // whether only the first such section is one
};

// The text with a table in the place of the first section's first line that is no comment; the
// other lines of all its sections go, comments stay. `addTable` is called only if there is such a
// line.
std::string WithSectionRewritten(std::string_view text, const SectionRules& rules,
                                 const std::function<void(std::string& out)>& addTable);

}  // namespace wheelwright
