// What every language file beside the program must be: the form of the file, what the single texts
// are used for, and captions that leave each key of a visible part of a window to one control.
#include "core/CodePage.h"
#include "core/DiskFiles.h"
#include "core/Text.h"
#include "screen/Captions.h"
#include "screen/DefinitionFields.h"
#include "screen/HandlingFields.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

constexpr std::size_t kUsedEntries = 182;
constexpr std::size_t kNewVehicle = 63;   // " 'NEWCAR54'" follows
constexpr std::size_t kWrongCount = 102;  // ": ", the number found, a blank and 103 follow
constexpr std::size_t kExpectedCount = 103;
constexpr std::size_t kDamagedLine = 150;  // directly followed by a line number
constexpr std::size_t kFirstWheelInfo = 146;
constexpr std::size_t kSecondWheelInfo = 149;

// Names of kinds of files, which a pattern such as " (*.cfg)" follows.
constexpr std::array<std::size_t, 3> kFileKinds = {14, 122, 152};

// A caption and the one that takes its place for some vehicles.
using Exchange = std::pair<int, int>;
constexpr std::array<Exchange, 9> kForBoats = {{{33, 169},
                                                {35, 170},
                                                {37, 171},
                                                {55, 172},
                                                {53, 173},
                                                {65, 174},
                                                {67, 175},
                                                {71, 176},
                                                {73, 177}}};
constexpr std::array<Exchange, 1> kForPlanes = {{{145, 151}}};

const std::string kFolder = std::string(WHEELWRIGHT_SOURCE_DIR) + "/language/";

std::vector<std::string> LanguageFiles() {
  std::vector<std::string> names;
  for (const std::string& name : DiskFiles().List(kFolder)) {
    if (name.ends_with(".lng")) names.push_back(name);
  }
  return names;
}

// The texts between the line ends; a text behind the last line end counts as a line too.
std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = std::min(text.find(kLineEnd, begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + kLineEnd.size();
  }
  return lines;
}

constexpr char kBytesWithoutCharacter[] = "\x81\x8D\x8F\x90\x9D";

bool IsControl(char byte) { return static_cast<unsigned char>(byte) < ' '; }

bool IsPlain(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

// Words in the code page are hardly ever UTF-8 too: a letter beyond ASCII stands alone in them.
bool HasLettersInUtf8(const std::string& text) {
  return !std::all_of(text.begin(), text.end(), IsPlain) && ToUnicode(FromUnicode(text)) == text;
}

// A caption as it is read on screen, and the characters behind its mnemonic marks.
struct ReadCaption {
  std::string text;
  std::string keys;
};

ReadCaption Read(const std::string& caption) {
  ReadCaption read;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const bool marked = caption[i] == '&';
    if (marked) ++i;
    if (i == caption.size()) break;
    if (marked && caption[i] != '&') read.keys += FoldCase(caption[i]);
    read.text += caption[i];
  }
  return read;
}

// The page of a tab group on which a control lies, or nothing for what is always in sight.
using Page = std::pair<const Control*, int>;

Page PageOf(const Control& control) {
  const Control* inner = &control;
  while (inner->Container() != nullptr) {
    if (dynamic_cast<const TabGroup*>(inner->Container()) != nullptr) {
      return {inner->Container(), inner->Page()};
    }
    inner = inner->Container();
  }
  return {nullptr, 0};
}

// The entries of the buttons and labels, which a key reaches, page by page.
using EntriesByPage = std::map<Page, std::set<int>>;

void AddButtonsAndLabels(const std::vector<CaptionRow>& rows, EntriesByPage& entries) {
  for (const CaptionRow& row : rows) {
    const bool isFrame = dynamic_cast<const Frame*>(&row.control) != nullptr;
    if (!isFrame && row.lang != kNoLang) entries[PageOf(row.control)].insert(row.lang);
  }
}

EntriesByPage ButtonsAndLabels(FrmMain& main) {
  EntriesByPage entries;
  AddButtonsAndLabels(CaptionsOf(main), entries);
  for (const HandlingField& field : kHandlingFields) {
    if (field.label != nullptr) entries[PageOf(main.*field.label)].insert(field.captionLang);
  }
  for (const DefinitionField& field : kDefinitionFields) {
    entries[PageOf(main.*field.label)].insert(field.captionLang);
  }
  return entries;
}

template <class Window>
std::set<int> ButtonsAndLabelsOf(Window& window) {
  EntriesByPage entries;
  AddButtonsAndLabels(CaptionsOf(window), entries);
  return entries[Page{nullptr, 0}];
}

template <class Exchanges>
std::set<int> Exchanged(std::set<int> entries, const Exchanges& exchanges) {
  for (const Exchange& exchange : exchanges) {
    if (entries.erase(exchange.first) != 0) entries.insert(exchange.second);
  }
  return entries;
}

// All sets of buttons and labels that a person sees at one time.
std::vector<std::set<int>> SeenTogether() {
  FrmMain main;
  FrmError error;
  FrmExport exporter;
  const EntriesByPage byPage = ButtonsAndLabels(main);
  const std::set<int>& always = byPage.at(Page{nullptr, 0});
  std::vector<std::set<int>> seen = {ButtonsAndLabelsOf(error), ButtonsAndLabelsOf(exporter)};
  for (const auto& [page, entries] : byPage) {
    std::set<int> together = entries;
    together.insert(always.begin(), always.end());
    seen.push_back(Exchanged(together, kForBoats));
    seen.push_back(Exchanged(together, kForPlanes));
    seen.push_back(std::move(together));
  }
  return seen;
}

std::set<int> AllButtonsAndLabels() {
  std::set<int> all;
  for (const std::set<int>& entries : SeenTogether()) all.insert(entries.begin(), entries.end());
  return all;
}

std::set<int> TabEntries() {
  FrmMain main;
  std::set<int> entries;
  for (const TabCaptionRow& row : TabCaptionsOf(main)) entries.insert(row.lang);
  return entries;
}

class LanguageFile : public ::testing::TestWithParam<std::string> {
 protected:
  LanguageFile() : bytes_(DiskFiles().Read(kFolder + GetParam())), texts_(LinesOf(bytes_)) {}

  void SetUp() override { ASSERT_EQ(texts_.size(), kUsedEntries); }

  const std::string& Entry(int index) const { return texts_[static_cast<std::size_t>(index)]; }
  std::string Shown(int index) const { return ToUnicode(Entry(index)); }

  std::string bytes_;
  std::vector<std::string> texts_;
};

TEST_P(LanguageFile, EndsEachLineWithCarriageReturnAndLineFeed) {
  EXPECT_TRUE(bytes_.ends_with(kLineEnd));
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    EXPECT_EQ(texts_[i].find_first_of("\r\n"), std::string::npos) << "line " << i + 1;
  }
}

TEST_P(LanguageFile, IsTextInWindows1252) {
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    EXPECT_EQ(texts_[i].find_first_of(kBytesWithoutCharacter), std::string::npos) << "entry " << i;
    EXPECT_TRUE(std::none_of(texts_[i].begin(), texts_[i].end(), IsControl)) << "entry " << i;
    EXPECT_FALSE(HasLettersInUtf8(texts_[i])) << "entry " << i;
  }
}

TEST_P(LanguageFile, HasATextForEachEntry) {
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    EXPECT_FALSE(TrimBlanks(texts_[i]).empty()) << "entry " << i;
  }
}

TEST_P(LanguageFile, HasABlankAtAnEndOnlyBeforeALineNumber) {
  EXPECT_TRUE(texts_[kDamagedLine].ends_with(' '));
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    EXPECT_FALSE(texts_[i].starts_with(' ')) << "entry " << i;
    if (i != kDamagedLine) {
      EXPECT_FALSE(texts_[i].ends_with(' ')) << "entry " << i;
    }
  }
}

TEST_P(LanguageFile, NamesTheKindsOfFilesWithWordsOnly) {
  for (const std::size_t kind : kFileKinds) {
    EXPECT_EQ(texts_[kind].find_first_of("*()|"), std::string::npos) << "entry " << kind;
  }
}

TEST_P(LanguageFile, LeavesSignsToTheTextsThatFollow) {
  EXPECT_FALSE(texts_[kWrongCount].ends_with(':'));
  EXPECT_FALSE(texts_[kExpectedCount].starts_with(':'));
  EXPECT_EQ(texts_[kNewVehicle].find('\''), std::string::npos);
}

TEST_P(LanguageFile, MarksAKeyInEachButtonAndLabel) {
  for (const int entry : AllButtonsAndLabels()) {
    const std::string keys = Read(Entry(entry)).keys;
    ASSERT_EQ(keys.size(), 1u) << "entry " << entry << ": " << Shown(entry);
    EXPECT_NE(std::isalnum(static_cast<unsigned char>(keys[0])), 0) << "entry " << entry;
  }
}

TEST_P(LanguageFile, GivesEachKeyToOneControlOfWhatIsSeenTogether) {
  for (const std::set<int>& together : SeenTogether()) {
    std::map<std::string, int> owners;
    for (const int entry : together) {
      const auto [owner, isNew] = owners.emplace(Read(Entry(entry)).keys, entry);
      EXPECT_TRUE(isNew) << Shown(entry) << " and " << Shown(owner->second) << " have the same key";
    }
  }
}

TEST_P(LanguageFile, HasOnlyDoubledAmpersandsOnTabs) {
  for (const int entry : TabEntries()) EXPECT_EQ(Read(Entry(entry)).keys, "") << Shown(entry);
}

TEST_P(LanguageFile, HasNoAmpersandInMessagesHintsListsAndFrames) {
  std::set<int> marked = AllButtonsAndLabels();
  marked.merge(TabEntries());
  for (int entry = 0; entry < static_cast<int>(kUsedEntries); ++entry) {
    if (marked.contains(entry)) continue;
    EXPECT_EQ(Entry(entry).find('&'), std::string::npos) << "entry " << entry;
  }
}

INSTANTIATE_TEST_SUITE_P(All, LanguageFile, ::testing::ValuesIn(LanguageFiles()));

TEST(LanguageFiles, GermanAndEnglishAreThere) {
  EXPECT_TRUE(DiskFiles().Exists(kFolder + "Deutsch.lng"));
  EXPECT_TRUE(DiskFiles().Exists(kFolder + "English.lng"));
}

using Designed = std::map<int, std::string>;

Designed DesignOfCaptions() {
  FrmMain main;
  FrmError error;
  FrmExport exporter;
  Designed design;
  for (const auto& rows : {CaptionsOf(main), CaptionsOf(error), CaptionsOf(exporter)}) {
    for (const CaptionRow& row : rows) design.emplace(row.lang, row.design);
  }
  for (const TabCaptionRow& row : TabCaptionsOf(main)) {
    design.emplace(row.lang, Read(row.design).text);
  }
  for (const ColumnCaptionRow& row : ColumnCaptions()) design.emplace(row.lang, row.design);
  return design;
}

void AddDesignOfFields(Designed& design) {
  for (const HandlingField& field : kHandlingFields) {
    design.emplace(field.captionLang, field.caption);
    design.emplace(field.infoLang, field.infoCaption);
  }
  for (const DefinitionField& field : kDefinitionFields) {
    design.emplace(field.captionLang, field.caption);
    design.emplace(field.infoLang, field.infoCaption);
  }
  for (const CodeList& list : kCodeLists) {
    int entry = list.firstLang;
    for (const char* text : list.entries) {
      if (text != nullptr) design.emplace(entry++, text);
    }
  }
}

TEST(LanguageFiles, GermanHasTheCaptionsOfTheDesign) {
  Designed design = DesignOfCaptions();
  AddDesignOfFields(design);
  design.erase(kNoLang);
  // The design has placeholders for these two hints.
  design.erase(kFirstWheelInfo);
  design.erase(kSecondWheelInfo);
  const std::vector<std::string> german = LinesOf(DiskFiles().Read(kFolder + "Deutsch.lng"));
  ASSERT_EQ(german.size(), kUsedEntries);
  for (const auto& [entry, caption] : design) {
    EXPECT_EQ(ToUnicode(Read(german[static_cast<std::size_t>(entry)]).text), caption);
  }
}

}  // namespace
}  // namespace wheelwright
