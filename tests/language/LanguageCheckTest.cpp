// The check for translators finds what it is there to find, and says what to do.
#include "core/DiskFiles.h"
#include "languages/Faults.h"
#include "languages/Report.h"
#include "languages/Sightings.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::languages {

std::ostream& operator<<(std::ostream& stream, const Fault& fault) { return stream << ReportOf("", {fault}); }

std::ostream& operator<<(std::ostream& stream, const Sighting& sighting) {
  return stream << sighting.entry << " on " << sighting.control;
}

namespace {

using Faults = std::vector<Fault>;

std::string English() {
  return DiskFiles().Read(std::string(WHEELWRIGHT_SOURCE_DIR) + "/language/English.lng");
}

// The English file with another text for one entry.
std::string With(std::size_t entry, const std::string& text) {
  std::string bytes;
  std::vector<std::string> entries = EntriesOf(English());
  entries[entry] = text;
  for (const std::string& each : entries) bytes += each + "\r\n";
  return bytes;
}

Faults FaultsWith(std::size_t entry, const std::string& text) { return FaultsOf(With(entry, text)); }

TEST(LanguageCheck, AGoodFileHasNoFault) {
  EXPECT_EQ(FaultsOf(English()), Faults());
  EXPECT_EQ(FaultsWith(0, "Lang\xFC\x65"), Faults());
  EXPECT_EQ(ReportOf("English.lng", {}), "English.lng: all is well\n");
}

TEST(LanguageCheck, AReportNamesFileEntryLineAndControl) {
  EXPECT_EQ(ReportOf("X.lng", {{17, "is wrong"}, {106, "too"}, {12, "as well"}, {{}, "is old"}}),
            "X.lng: entry 17 (line 18, lblGewicht) is wrong\n"
            "X.lng: entry 106 (line 107, frmError.cmdClose) too\n"
            "X.lng: entry 12 (line 13, a message) as well\n"
            "X.lng: is old\n");
}

TEST(LanguageCheck, AFileOfAnotherNumberOfLinesIsToldOnce) {
  const Faults tooMany = {{{},
                           "has 183 lines instead of 182; compare it with English.lng, where each "
                           "line has its place"}};
  EXPECT_EQ(FaultsOf(English() + "One more\r\n"), tooMany);
  std::string shortFile = English();
  shortFile.erase(0, shortFile.find('\n') + 1);
  const Faults tooFew = {{{},
                          "has 181 lines instead of 182; compare it with English.lng, where each "
                          "line has its place"}};
  EXPECT_EQ(FaultsOf(shortFile), tooFew);
  EXPECT_EQ(FaultsOf("").size(), 1u);
}

TEST(LanguageCheck, OtherLineEndsAreTold) {
  const Faults expected = {{{}, "has lines that don't end in CR LF; save it with the line ends of Windows"}};
  std::string unixEnds = English();
  std::erase(unixEnds, '\r');
  EXPECT_EQ(FaultsOf(unixEnds), expected);
  EXPECT_EQ(FaultsWith(9, "&Save\nnow"), expected);
  EXPECT_EQ(FaultsWith(9, "&Save\rnow"), expected);
}

TEST(LanguageCheck, AMissingLastLineEndIsTold) {
  std::string bytes = English();
  bytes.resize(bytes.size() - 2);
  EXPECT_EQ(FaultsOf(bytes), (Faults{{{}, "has no line end behind the last line; put one there"}}));
}

TEST(LanguageCheck, AFileInUtf8IsToldOnce) {
  const Faults expected = {{{}, "is in UTF-8; save it in Windows-1252 (Western European)"}};
  EXPECT_EQ(FaultsWith(2, "G\xC3\xA9n\xC3\xA9ral"), expected);
  EXPECT_EQ(FaultsOf("\xEF\xBB\xBF" + English()), expected);
}

TEST(LanguageCheck, AnEntryInUtf8AmongOthersIsTold) {
  std::string bytes = With(2, "G\xC3\xA9n\xC3\xA9ral");
  bytes.replace(0, bytes.find('\r'), "Langue fran\xE7\x61ise");
  EXPECT_EQ(FaultsOf(bytes), (Faults{{2, "is in UTF-8; write it in Windows-1252 as the rest of the file"}}));
}

TEST(LanguageCheck, AByteThatIsNoCharacterIsTold) {
  EXPECT_EQ(FaultsWith(2, "Gen\x81ral"),
            (Faults{{2, "has the byte 81, which is no character of Windows-1252"}}));
  EXPECT_EQ(FaultsWith(2, "Gen\teral"), (Faults{{2, "has the control character 09; take it out"}}));
  EXPECT_EQ(FaultsWith(2, "Gene\x7Fral"), (Faults{{2, "has the control character 7F; take it out"}}));
}

TEST(LanguageCheck, AnEmptyEntryIsTold) {
  const Faults expected = {{99, "is empty; every entry needs a text"}};
  EXPECT_EQ(FaultsWith(99, ""), expected);
  EXPECT_EQ(FaultsWith(99, "  "), expected);
}

TEST(LanguageCheck, BlanksInTheWrongPlaceAreTold) {
  EXPECT_EQ(FaultsWith(99, " Done."), (Faults{{99, "begins with a blank; take it out"}}));
  EXPECT_EQ(FaultsWith(99, "Done. "), (Faults{{99, "ends in a blank; take it out"}}));
  EXPECT_EQ(FaultsWith(99, "All  done."), (Faults{{99, "has two blanks in a row; take one out"}}));
  EXPECT_EQ(FaultsWith(150, "Error in line"),
            (Faults{{150, "must end in a blank, since a line number follows"}}));
}

TEST(LanguageCheck, StrayBackslashesAndLineBreaksAreTold) {
  EXPECT_EQ(FaultsWith(99, "All\\tdone."), (Faults{{99, "has a backslash that no n follows; take it out"}}));
  EXPECT_EQ(FaultsWith(99, "Done.\\"), (Faults{{99, "has a backslash that no n follows; take it out"}}));
  EXPECT_EQ(FaultsWith(99, "All\\nis\\Ndone."), Faults());
  EXPECT_EQ(FaultsWith(1, "All\\nvehicles"), (Faults{{1, "has a line break, for which there is no room"}}));
}

TEST(LanguageCheck, ThePatternOfAKindOfFileIsTheProgramsOwn) {
  EXPECT_EQ(FaultsWith(14, "Handling (*.cfg)"),
            (Faults{{14, "must be words only; the program puts \" (*.cfg)\" behind them"}}));
  EXPECT_EQ(FaultsWith(122, "*.ide"),
            (Faults{{122, "must be words only; the program puts \" (*.ide)\" behind them"}}));
  EXPECT_EQ(FaultsWith(152, "Colours|"),
            (Faults{{152, "must be words only; the program puts \" (*.dat)\" behind them"}}));
}

TEST(LanguageCheck, SignsThatTheProgramPutsItselfAreTold) {
  EXPECT_EQ(FaultsWith(102, "Wrong number of values:"),
            (Faults{{102, "ends in a colon, which the program puts there itself; take it out"}}));
  EXPECT_EQ(FaultsWith(63, "Added '"),
            (Faults{{63, "has a quote; the program puts the new name in quotes behind it"}}));
}

TEST(LanguageCheck, NamesAndNumbersOfEveryLanguageMustBeThere) {
  EXPECT_EQ(FaultsWith(103, "too few"), (Faults{{103, "must hold \"33\""}}));
  EXPECT_EQ(FaultsWith(121, "No manual"), (Faults{{121, "must hold \"Anleitung.htm\""}}));
  EXPECT_EQ(FaultsWith(126, "Number"), (Faults{{126, "must hold \"default.ide\""}}));
  EXPECT_EQ(FaultsWith(128, "Key"), (Faults{{128, "must hold \"handling.cfg\""}}));
  const Faults range = {{70, "must name the numbers -1.0 1.0 in this order, with decimal points"}};
  EXPECT_EQ(FaultsWith(70, "(-1,0 to 1,0)"), range);
  EXPECT_EQ(FaultsWith(70, "(up to 1.0)"), range);
  EXPECT_EQ(FaultsWith(70, "(from -1.0 up to 1.0)"), Faults());
}

TEST(LanguageCheck, AButtonOrLabelNeedsOneKey) {
  EXPECT_EQ(FaultsWith(9, "Save"), (Faults{{9, "has no key; put an \"&\" before one of its letters"}}));
  EXPECT_EQ(FaultsWith(9, "Save && run"),
            (Faults{{9, "has no key; put an \"&\" before one of its letters"}}));
  EXPECT_EQ(FaultsWith(9, "&Save &it"),
            (Faults{{9, "has more than one \"&\"; leave the one before the letter that is the key"}}));
  for (const char* text : {"Save & run", "Save&", "S\xE4ve &\xE4"}) {
    EXPECT_EQ(FaultsWith(9, text),
              (Faults{{9, "must have its \"&\" before a letter from A to Z or a digit"}}));
  }
}

TEST(LanguageCheck, AMarkWithoutMeaningIsTold) {
  const Faults onTab = {{4, "is a tab, which has no key; write \"&&\" for an \"&\" to be read"}};
  EXPECT_EQ(FaultsWith(4, "Engine & drive"), onTab);
  EXPECT_EQ(FaultsWith(4, "&Engine"), onTab);
  // A hint, a row of a list, the head of a column, a message.
  for (const std::size_t entry : {32u, 46u, 109u, 116u}) {
    const std::string text = EntriesOf(English())[entry];
    EXPECT_EQ(FaultsWith(entry, "&" + text),
              (Faults{{entry, "has an \"&\", which means nothing here; take it out"}}));
  }
}

TEST(LanguageCheck, AFrameMayHaveAKeyAndMayLackOne) {
  EXPECT_EQ(FaultsWith(100, "Author"), Faults());
  EXPECT_EQ(FaultsWith(100, "A&uthor"), Faults());
  EXPECT_EQ(FaultsWith(100, "Auth&or"),
            (Faults{{100,
                     "has the key \"o\" together with entry 8 (&Open file...) in the same window or tab; "
                     "choose another letter"}}));
}

TEST(LanguageCheck, OneLetterOfInfoStaysFree) {
  EXPECT_EQ(FaultsWith(17, "Mass, &full (kg)"),
            (Faults{{{}, "leaves no letter of Info free; choose another one than I, N, F or O somewhere"}}));
  EXPECT_EQ(FaultsWith(106, "Close &fast"), Faults());
}

TEST(LanguageCheck, TwoOfOneTabWithTheSameKeyAreTold) {
  EXPECT_EQ(FaultsWith(17, "Mass, &new (kg)"),
            (Faults{{17,
                     "has the key \"n\" together with entry 15 (Vehicle &name) in the same "
                     "window or tab; choose another letter"}}));
}

TEST(LanguageCheck, AKeyOfACaptionOfATabAndOneBesideTheTabsAreToldOnce) {
  EXPECT_EQ(FaultsWith(17, "Ma&ss (kg)"),
            (Faults{{17,
                     "has the key \"s\" together with entry 9 (&Save) in the same window or tab; "
                     "choose another letter"}}));
}

TEST(LanguageCheck, TheSameKeyOnTwoTabsIsFree) {
  EXPECT_EQ(FaultsWith(17, "Mass, mo&ment (kg)"), Faults());
  EXPECT_EQ(FaultsWith(21, "&Total (m)"), Faults());
}

TEST(LanguageCheck, AKeyOfABoatsCaptionIsHeldAgainstTheOthersOfABoat) {
  EXPECT_EQ(FaultsWith(169, "Bankin&g force"),
            (Faults{{169,
                     "has the key \"g\" together with entry 39 (Number of &gears) in the same "
                     "window or tab; choose another letter"}}));
  // Entry 33 isn't in sight while 169 is.
  EXPECT_EQ(FaultsWith(169, "Banking &turn"),
            (Faults{{171,
                     "has the key \"t\" together with entry 169 (Banking &turn) in the same "
                     "window or tab; choose another letter"}}));
}

TEST(LanguageCheck, TheExportWindowHasKeysOfItsOwn) {
  EXPECT_EQ(FaultsWith(110, "Availabl&e vehicles"),
            (Faults{{112,
                     "has the key \"e\" together with entry 110 (Availabl&e vehicles) in the same "
                     "window or tab; choose another letter"}}));
  EXPECT_EQ(FaultsWith(110, "Available vehicles, &sorted"), Faults());
}

TEST(LanguageCheck, TheNameOfAFileIsItsEndingAndLettersOfTheCodePage) {
  EXPECT_EQ(FaultsOfName("Fran\xC3\xA7"
                         "ais.lng"),
            Faults());
  EXPECT_EQ(FaultsOfName("Francais.LNG"),
            (Faults{{{}, "the name must end in .lng, or the program doesn't find the file"}}));
  EXPECT_EQ(FaultsOfName("T\xC3\xBCrk\xC3\xA7"
                         "e \xC4\xB0.lng"),
            (Faults{{{},
                     "the name has a letter that Windows-1252 lacks; the program couldn't "
                     "show it"}}));
}

bool Holds(const View& view, const Sighting& sighting) {
  return std::find(view.begin(), view.end(), sighting) != view.end();
}

TEST(LanguageCheck, AViewHoldsAPageAndWhatIsAlwaysInSight) {
  const std::vector<View> views = AllViews();
  const auto brakes = std::find_if(views.begin(), views.end(), [](const View& view) {
    return Holds(view, {53, Use::Label, "lblBremsstaerke"});
  });
  ASSERT_NE(brakes, views.end());
  for (const Sighting& seen : {Sighting{54, Use::Hint, "lblBremsstaerkeInfo"},
                               Sighting{57, Use::Label, "lblABS"}, Sighting{8, Use::Button, "cmdOpen"},
                               Sighting{0, Use::Frame, "FrameSprache"}, Sighting{5, Use::Tab, "SSTab1"}}) {
    EXPECT_TRUE(Holds(*brakes, seen)) << seen;
  }
  EXPECT_FALSE(Holds(*brakes, {17, Use::Label, "lblGewicht"}));
  EXPECT_FALSE(Holds(*brakes, {173, Use::Label, "lblBremsstaerke"}));
  EXPECT_FALSE(Holds(*brakes, {112, Use::Button, "frmExport.cmdExport"}));
}

TEST(LanguageCheck, WhatIsNoMessageComesUpInSomeView) {
  const std::map<std::size_t, Sighting> sightings = SightingsByEntry(AllViews());
  std::vector<std::size_t> messages;
  for (std::size_t entry = 0; entry < kUsedEntries; ++entry) {
    if (!sightings.contains(entry)) messages.push_back(entry);
  }
  EXPECT_EQ(messages,
            (std::vector<std::size_t>{12,  13,  14,  60,  61,  63,  91,  92,  98,  99,  102, 103, 104,
                                      105, 113, 114, 115, 116, 117, 118, 121, 122, 150, 152, 153, 154}));
}

}  // namespace
}  // namespace wheelwright::languages
