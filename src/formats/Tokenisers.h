// What takes the lines of all formats apart: one class for lines of commas, one for lines of
// blanks.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// A line of fields between commas, of which blanks and tabs are no part. Each call of GetCommaField
// takes one comma away that stands at the line's end, and the readers depend on that: a later call
// sees what the earlier ones left. Constant time for each call.
class CommaLine {
 public:
  CommaLine() = default;
  explicit CommaLine(std::string_view line) { Take(line); }

  // Becomes another line, in the room of the one before.
  void Take(std::string_view line);

  // The number of fields. A comma at the end counts as one more, empty field; an empty line has
  // none. Failure 6 past 32,767.
  std::int16_t CountCommaFields() const;

  // A field counted from 0, empty for an index outside the fields.
  std::string_view GetCommaField(int index);

 private:
  std::string cleaned_;              // as it was before any comma went
  std::size_t length_ = 0;           // what the calls so far have left of it
  std::vector<std::size_t> commas_;  // the positions of all commas, ascending
};

// A line of fields between blanks and tabs. The line must outlive it.
class SpaceLine {
 public:
  static constexpr int kFieldsAtHand = 33;

  explicit SpaceLine(std::string_view line);

  // All fields of the line. Failure 6 past 32,767.
  std::int16_t CountSpaceFields() const;

  // A field counted from 0, empty for an index outside the fields. Only the first 33 can be had.
  std::string_view GetSpaceField(int index) const { return fields_.at(static_cast<std::size_t>(index)); }

 private:
  std::array<std::string_view, kFieldsAtHand> fields_;
  std::size_t count_ = 0;
};

// The single-blank form of a line: every tab a blank, every run of blanks one blank, no blanks at
// the ends.
std::string CleanedLine(std::string_view line);

}  // namespace wheelwright
