// The lines of a file's text. A line ends at a carriage return, with or without a line feed behind
// it; a line feed alone is an ordinary character. What follows the last line end is a line if it
// isn't empty.
#pragma once

#include "core/Text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace wheelwright {

// For range-based loops: for (std::string_view line : Lines(text)).
class Lines {
 public:
  class Walker {
   public:
    explicit Walker(std::string_view rest) : rest_(rest), atEnd_(rest.empty()) { Take(); }
    std::string_view operator*() const { return line_; }
    Walker& operator++() {
      atEnd_ = rest_.empty();
      Take();
      return *this;
    }
    bool operator!=(std::nullptr_t) const { return !atEnd_; }

   private:
    void Take() {
      const std::size_t end = rest_.find('\r');
      line_ = rest_.substr(0, end);
      if (end == std::string_view::npos) {
        rest_ = {};
        return;
      }
      const bool lineFeedBehind = end + 1 < rest_.size() && rest_[end + 1] == '\n';
      rest_.remove_prefix(end + (lineFeedBehind ? 2 : 1));
    }

    std::string_view rest_;
    std::string_view line_;
    bool atEnd_;
  };

  explicit Lines(std::string_view text) : text_(text) {}
  Walker begin() const { return Walker(text_); }
  std::nullptr_t end() const { return nullptr; }

 private:
  std::string_view text_;
};

// The part of a line that stands before the first mark, the whole line if there is none.
inline std::string_view BeforeMark(std::string_view line, char mark) {
  return line.substr(0, line.find(mark));
}

// Every line that is written ends in carriage return and line feed.
inline void AddLine(std::string& out, std::string_view line) { out.append(line).append(kLineEnd); }

// The text with every bare line feed as a carriage return and line feed, if it has one anywhere:
// the lines that ended properly are then joined to their neighbours, and the text ends in one line
// end more. Nothing for every other text.
std::optional<std::string> WithoutBareLineFeeds(std::string_view text);

}  // namespace wheelwright
