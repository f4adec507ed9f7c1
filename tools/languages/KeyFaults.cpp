#include "languages/KeyFaults.h"

#include "core/CodePage.h"
#include "languages/Sightings.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <utility>

namespace wheelwright::languages {
namespace {

// The characters behind the marks, in lower case; a doubled "&" is none. A mark at the end counts
// as one without a character.
std::string KeysOf(const std::string& caption) {
  std::string keys;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    ++i;
    const char behind = i < caption.size() ? caption[i] : '\0';
    if (behind != '&') keys += FoldCase(behind);
  }
  return keys;
}

bool IsLetterOrDigit(char key) { return (key >= 'a' && key <= 'z') || (key >= '0' && key <= '9'); }

bool TakesKey(Use use) { return use == Use::Button || use == Use::Label || use == Use::Frame; }

// The button of the main window that has the same caption in every language.
constexpr std::string_view kInfo = "info";

class KeyCheck {
 public:
  explicit KeyCheck(const std::vector<std::string>& entries) : entries_(entries) {}

  std::vector<Fault> Faults() {
    const std::map<std::size_t, Sighting> sightings = SightingsByEntry(views_);
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
      const auto sighting = sightings.find(entry);
      if (sighting == sightings.end()) {
        CheckUnmarked(entry);
      } else {
        CheckMarks(sighting->second);
      }
    }
    for (const View& view : views_) CheckView(view);
    CheckInfo();
    return std::move(faults_);
  }

 private:
  void Add(std::size_t entry, const std::string& text) { faults_.push_back({entry, text}); }

  void CheckMarks(const Sighting& sighting) {
    if (sighting.use == Use::Tab) {
      CheckTab(sighting.entry);
    } else if (TakesKey(sighting.use)) {
      CheckKey(sighting);
    } else {
      CheckUnmarked(sighting.entry);
    }
  }

  void CheckUnmarked(std::size_t entry) {
    if (entries_[entry].find('&') == std::string::npos) return;
    Add(entry, "has an \"&\", which means nothing here; take it out");
  }

  void CheckTab(std::size_t entry) {
    if (KeysOf(entries_[entry]).empty()) return;
    Add(entry, "is a tab, which has no key; write \"&&\" for an \"&\" to be read");
  }

  void CheckKey(const Sighting& sighting) {
    const std::size_t entry = sighting.entry;
    const std::string keys = KeysOf(entries_[entry]);
    if (keys.empty()) {
      if (sighting.use != Use::Frame) Add(entry, "has no key; put an \"&\" before one of its letters");
    } else if (keys.size() > 1) {
      Add(entry, "has more than one \"&\"; leave the one before the letter that is the key");
    } else if (!IsLetterOrDigit(keys[0])) {
      Add(entry, "must have its \"&\" before a letter from A to Z or a digit");
    }
    // The names of controls of other windows have that of the window before them.
    if (sighting.control.find('.') == std::string::npos) keysOfMain_ += keys;
  }

  void CheckInfo() {
    const auto isTaken = [this](char letter) { return keysOfMain_.find(letter) != std::string::npos; };
    if (!std::all_of(kInfo.begin(), kInfo.end(), isTaken)) return;
    faults_.push_back({{}, "leaves no letter of Info free; choose another one than I, N, F or O somewhere"});
  }

  void CheckView(const View& view) {
    std::map<std::string, std::size_t> owners;
    for (const Sighting& sighting : view) {
      const std::string keys = KeysOf(entries_[sighting.entry]);
      if (!TakesKey(sighting.use) || keys.empty()) continue;
      const auto [owner, isNew] = owners.emplace(keys, sighting.entry);
      if (!isNew) AddClash(keys, owner->second, sighting.entry);
    }
  }

  // A clash with what is always in sight comes up on every page.
  void AddClash(const std::string& keys, std::size_t one, std::size_t other) {
    const std::size_t first = std::min(one, other);
    const std::size_t second = std::max(one, other);
    if (!clashes_.emplace(first, second).second) return;
    Add(second, "has the key \"" + ToUnicode(keys) + "\" together with entry " + std::to_string(first) +
                    " (" + ToUnicode(entries_[first]) + ") in the same window or tab; choose another letter");
  }

  const std::vector<std::string>& entries_;
  const std::vector<View> views_ = AllViews();
  std::string keysOfMain_;
  std::set<std::pair<std::size_t, std::size_t>> clashes_;
  std::vector<Fault> faults_;
};

}  // namespace

std::vector<Fault> KeyFaults(const std::vector<std::string>& entries) { return KeyCheck(entries).Faults(); }

}  // namespace wheelwright::languages
