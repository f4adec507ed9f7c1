#include "formats/LanguageFile.h"

#include "core/CodePage.h"
#include "core/Failure.h"
#include "formats/Lines.h"

namespace wheelwright {
namespace {

// Writes the line over the entry, whose room is used again: a line may be as long as the file.
void PutWithLineBreaks(std::string& entry, std::string_view line) {
  entry.clear();
  entry.reserve(line.size());
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool lineBreak = line[i] == '\\' && i + 1 < line.size() && FoldCase(line[i + 1]) == 'n';
    if (lineBreak) {
      entry += kLineEnd;
      ++i;
    } else {
      entry += line[i];
    }
  }
}

}  // namespace

void ReadLanguage(std::string_view text, std::span<std::string> entries) {
  std::size_t entry = 0;
  for (const std::string_view line : Lines(text)) {
    if (entry >= entries.size()) throw Failure(FailureNumber::SubscriptOutOfRange);
    PutWithLineBreaks(entries[entry], line);
    ++entry;
  }
}

}  // namespace wheelwright
