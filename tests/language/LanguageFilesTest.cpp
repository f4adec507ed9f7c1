// Every language file beside the program is as its translator's check wants it, and the German one
// has the captions of the design.
#include "core/CodePage.h"
#include "core/DiskFiles.h"
#include "languages/Faults.h"
#include "languages/Report.h"
#include "screen/Fields.h"

#include <gtest/gtest.h>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace wheelwright {
namespace {

constexpr std::size_t kUsedEntries = 182;
constexpr int kFirstWheelInfo = 146;
constexpr int kSecondWheelInfo = 149;

const std::string kFolder = std::string(WHEELWRIGHT_SOURCE_DIR) + "/language/";

std::vector<std::string> LanguageFiles() {
  std::vector<std::string> names;
  for (const std::string& name : DiskFiles().List(kFolder)) {
    if (name.ends_with(".lng")) names.push_back(name);
  }
  return names;
}

class LanguageFile : public ::testing::TestWithParam<std::string> {};

TEST_P(LanguageFile, IsAsItsTranslatorsCheckWantsIt) {
  const std::string bytes = DiskFiles().Read(kFolder + GetParam());
  EXPECT_EQ(languages::ReportOf(GetParam(), languages::FaultsOfName(GetParam())),
            GetParam() + ": all is well\n");
  EXPECT_EQ(languages::ReportOf(GetParam(), languages::FaultsOf(bytes)), GetParam() + ": all is well\n");
}

// What no check of one file alone can see: a text that was left in another language.
TEST_P(LanguageFile, HasItsOwnQuestionsAndMessages) {
  const std::vector<std::string> own = languages::EntriesOf(DiskFiles().Read(kFolder + GetParam()));
  for (const std::string& other : LanguageFiles()) {
    if (other == GetParam()) continue;
    const std::vector<std::string> texts = languages::EntriesOf(DiskFiles().Read(kFolder + other));
    for (const std::size_t entry : {12u, 61u, 91u, 98u, 99u, 105u, 113u, 115u, 117u, 150u, 153u}) {
      EXPECT_NE(own[entry], texts[entry]) << "entry " << entry << " is that of " << other;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, LanguageFile, ::testing::ValuesIn(LanguageFiles()));

TEST(LanguageFiles, AllLanguagesAreThere) {
  EXPECT_EQ(LanguageFiles(),
            (std::vector<std::string>{"Deutsch.lng", "English.lng", "Español.lng", "Français.lng",
                                      "Italiano.lng", "Nederlands.lng", "Português.lng"}));
}

// A caption as it is read on screen.
std::string Read(const std::string& caption) {
  std::string read;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&') ++i;
    if (i < caption.size()) read += caption[i];
  }
  return read;
}

using Designed = std::map<int, std::string>;

void AddDesign(std::span<const Wording> wordings, Designed& design) {
  for (const Wording& words : wordings) design.emplace(words.lang, Read(words.design));
}

void AddDesignOf(const Window& window, Designed& design) {
  for (const Control* control : window.Controls()) {
    if (const auto* captioned = dynamic_cast<const Captioned*>(control))
      design.emplace(captioned->Words().lang, captioned->Words().design);
    if (const auto* tabs = dynamic_cast<const TabGroup*>(control)) AddDesign(tabs->Words(), design);
    if (const auto* list = dynamic_cast<const ReportList*>(control)) AddDesign(list->Words(), design);
  }
}

Designed DesignOfCaptions() {
  Designed design;
  AddDesignOf(FrmMain(), design);
  AddDesignOf(FrmError(), design);
  AddDesignOf(FrmExport(), design);
  for (const FieldRow<Car>& field : kHandlingFields) {
    int entry = field.entries.firstLang;
    for (const char* word : field.entries.words) design.emplace(entry++, word);
  }
  return design;
}

TEST(LanguageFiles, GermanHasTheCaptionsOfTheDesign) {
  Designed design = DesignOfCaptions();
  design.erase(kNoLang);
  // The design has placeholders for these two hints.
  design.erase(kFirstWheelInfo);
  design.erase(kSecondWheelInfo);
  const std::vector<std::string> german = languages::EntriesOf(DiskFiles().Read(kFolder + "Deutsch.lng"));
  ASSERT_EQ(german.size(), kUsedEntries);
  for (const auto& [entry, caption] : design) {
    EXPECT_EQ(ToUnicode(Read(german[static_cast<std::size_t>(entry)])), caption);
  }
}

}  // namespace
}  // namespace wheelwright
