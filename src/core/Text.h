// What all readers and writers do with texts. Texts are bytes in the code page; "blank" is the
// character 32 alone.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

inline constexpr std::string_view kLineEnd = "\r\n";

// The text without the blanks at both ends. Tabs stay.
std::string_view TrimBlanks(std::string_view text);

// The texts behind each other, in no more memory than they take.
std::string Concatenated(std::initializer_list<std::string_view> texts);

// The text with every capital letter of the code page as its lower-case letter.
std::string FoldedCase(std::string_view text);

// The position of the first occurrence at or behind `from`, ignoring case in the code page, or
// npos. An empty word is found at once. `folded` must be in lower case already. Linear in the text
// for words that don't repeat themselves.
std::size_t FindIgnoringCase(std::string_view text, std::string_view folded, std::size_t from = 0);

inline bool HoldsIgnoringCase(std::string_view text, std::string_view folded, std::size_t from = 0) {
  return FindIgnoringCase(text, folded, from) != std::string_view::npos;
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right);

// The order of lists that sort themselves: by the code of the lower-case letters, a shorter text
// before its continuations. Negative, zero or positive as left stands before, with or behind right.
int CompareIgnoringCase(std::string_view left, std::string_view right);

inline bool SortsBefore(std::string_view left, std::string_view right) {
  return CompareIgnoringCase(left, right) < 0;
}

// Brings texts into that order; equal ones keep theirs.
void SortAsInLists(std::vector<std::string>& texts);

}  // namespace wheelwright
