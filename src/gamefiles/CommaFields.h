// The tokenisers of the definition and colour files. Each cleans the caller's line in place, and
// the readers depend on that: a later call sees what the earlier one left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// The text of a comma-separated field, counted from 0, or an empty text for an index outside the
// fields. The line loses every blank and tab, and one comma at its end if there is one: each call
// takes one more comma away.
std::string GetCommaField(std::string& line, int index);

// The number of comma-separated fields. The line loses every blank and tab but no comma, so a comma
// at the end counts as one more, empty field. An empty line has none. Failure 6 past 32,767.
std::int16_t CountCommaFields(std::string& line);

// A line taken apart once for all its comma-separated fields: the same results as those of the two
// functions above, called in the same order on one line, in constant time each.
class CommaLine {
 public:
  explicit CommaLine(std::string_view line);

  // As CountCommaFields.
  std::int16_t Count() const;

  // As GetCommaField, the comma that goes included.
  std::string_view Field(int index);

 private:
  std::string cleaned_;              // as it was before any comma went
  std::size_t length_;               // what the calls so far have left of it
  std::vector<std::size_t> commas_;  // the positions of all commas, ascending
};

// The text of a blank-separated field, counted from 0, or an empty text for an index outside the
// fields. The line's tabs become blanks, runs of blanks one blank, and the blanks at both ends go.
std::string GetSpaceField(std::string& line, int index);

}  // namespace wheelwright
