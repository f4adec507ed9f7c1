#include "languages/TextFaults.h"

#include "core/CodePage.h"
#include "core/Text.h"
#include "gamefiles/FileKinds.h"
#include "languages/Sightings.h"
#include "screen/Fields.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <utility>

namespace wheelwright::languages {
namespace {

constexpr std::size_t kNewVehicle = 63;    // " 'NEWCAR54'" follows
constexpr std::size_t kOtherCount = 102;   // ": ", the number found, a blank and 103 follow
constexpr std::size_t kDamagedLine = 150;  // directly followed by a line number

struct Needed {
  std::size_t entry;
  const char* words;
};

// Names and numbers that are the same in every language.
constexpr std::array<Needed, 4> kNeeded = {
    {{103, "33"}, {121, "Anleitung.htm"}, {126, "default.ide"}, {128, "handling.cfg"}}};

class TextCheck {
 public:
  explicit TextCheck(const std::vector<std::string>& entries) : entries_(entries) {}

  std::vector<Fault> Faults() {
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
      if (TrimBlanks(entries_[entry]).empty()) {
        Add(entry, "is empty; every entry needs a text");
        continue;
      }
      CheckBlanks(entry);
      CheckBackslashes(entry);
    }
    CheckFollowedTexts();
    CheckNeeded();
    CheckRanges();
    return std::move(faults_);
  }

 private:
  void Add(std::size_t entry, const std::string& text) { faults_.push_back({entry, text}); }
  bool Has(std::size_t entry, std::string_view words) const {
    return entries_[entry].find(words) != std::string::npos;
  }

  void CheckBlanks(std::size_t entry) {
    const std::string& text = entries_[entry];
    if (text.starts_with(' ')) Add(entry, "begins with a blank; take it out");
    if (Has(entry, "  ")) Add(entry, "has two blanks in a row; take one out");
    if (entry == kDamagedLine) {
      if (!text.ends_with(' ')) Add(entry, "must end in a blank, since a line number follows");
    } else if (text.ends_with(' ')) {
      Add(entry, "ends in a blank; take it out");
    }
  }

  void CheckBackslashes(std::size_t entry) {
    const std::string& text = entries_[entry];
    const bool isCaption = sightings_.contains(entry);
    for (std::size_t at = text.find('\\'); at != std::string::npos; at = text.find('\\', at + 1)) {
      const bool breaksLine = at + 1 < text.size() && FoldCase(text[at + 1]) == 'n';
      if (!breaksLine) Add(entry, "has a backslash that no n follows; take it out");
      if (breaksLine && isCaption) Add(entry, "has a line break, for which there is no room");
    }
  }

  void CheckFollowedTexts() {
    for (const FileKind& kind : kFileKinds) {
      const std::size_t entry = kind.name;
      if (entries_[entry].find_first_of("*()|") == std::string::npos) continue;
      Add(entry,
          "must be words only; the program puts \" (*." + std::string(kind.ending) + ")\" behind them");
    }
    if (entries_[kOtherCount].ends_with(':')) {
      Add(kOtherCount, "ends in a colon, which the program puts there itself; take it out");
    }
    if (Has(kNewVehicle, "'")) {
      Add(kNewVehicle, "has a quote; the program puts the new name in quotes behind it");
    }
  }

  void CheckNeeded() {
    for (const Needed& needed : kNeeded) {
      if (!Has(needed.entry, needed.words)) {
        Add(needed.entry, "must hold \"" + std::string(needed.words) + "\"");
      }
    }
  }

  void CheckRanges();

  const std::vector<std::string>& entries_;
  const std::map<std::size_t, Sighting> sightings_ = SightingsByEntry(AllViews());
  std::vector<Fault> faults_;
};

// "-1.0 1.0" for "(-1.0 bis 1.0)".
std::string NumbersIn(std::string_view text) {
  std::string numbers;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_not_of("-.0123456789"), text.size());
    const std::string_view word = text.substr(0, end);
    if (word.find_first_of("0123456789") != std::string_view::npos) {
      numbers += (numbers.empty() ? "" : " ") + std::string(word);
    }
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return numbers;
}

void TextCheck::CheckRanges() {
  const FrmMain main;
  for (const FieldRow<Car>& field : kHandlingFields) {
    const auto& hint = LabelsOf(main, field).hint;
    if (!hint) continue;
    const auto entry = static_cast<std::size_t>(hint->Words().lang);
    const std::string needed = NumbersIn(hint->Words().design);
    if (NumbersIn(entries_[entry]) == needed) continue;
    Add(entry, "must name the numbers " + needed + " in this order, with decimal points");
  }
}

}  // namespace

std::vector<Fault> TextFaults(const std::vector<std::string>& entries) { return TextCheck(entries).Faults(); }

}  // namespace wheelwright::languages
