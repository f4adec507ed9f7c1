// The bytes of one run, divided into texts where a fuzzer needs several of them. The division is
// made of ordinary characters, so that seeds can be written by hand:
//
//   ; a comment
//   TAXI 1450.0 1.9
//   ==
//   TAXI|1450.0|1.9
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright::fuzz {

class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size);

  // What stands before the next line "==", all that is left if there is none. The line itself goes.
  std::string Take();

  // The same for a text that a person types: it has no line ends.
  std::string TakeTyped();

 private:
  std::string_view rest_;
};

// The texts between the marks, at least one. No carriage return is in them, since no field of a
// table ever holds one.
std::vector<std::string> PartsOf(const std::string& text, char mark);

// The same as a table: a row for each line, the fields between "|".
std::vector<std::vector<std::string>> RowsOf(const std::string& text);

// The field at the index, or the other text if the row is too short.
std::string FieldOr(const std::vector<std::string>& row, std::size_t index, const char* other);

// Any text stands for a number of 16 bits: "12" for 12, and so on.
std::int16_t NumberOf(const std::string& text);

}  // namespace wheelwright::fuzz
