// What holds for every file, however odd. The laws stand in oracle/; the fuzzers try them too.
#include "oracle/AnyDice.h"
#include "oracle/FormatLaws.h"
#include "oracle/OddTexts.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

RC_GTEST_PROP(HandlingLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  Dice dice = AnyDice();
  RequireHandlingRead(Told(OddHandlingFile(dice)));
}

RC_GTEST_PROP(HandlingLaws, TheWriterWritesWhatAPlainOneWritesAndKeepsForeignLines, ()) {
  Dice dice = AnyDice();
  const std::string text = Told(OddHandlingFile(dice));
  RequireHandlingWritten(text, OddVehicles(dice));
}

RC_GTEST_PROP(HandlingLaws, TokensComeThroughASaveAndASecondOneAddsAnEmptyLineAtMost, ()) {
  Dice dice = AnyDice();
  RequireHandlingSaved(Told(OddHandlingFile(dice)));
}

RC_GTEST_PROP(HandlingLaws, ATidyFileGivesTheSameRecordsWhenItHasBeenSaved, ()) {
  Dice dice = AnyDice();
  RequireTidyHandlingKept(Told(TidyHandlingFile(dice)));
}

RC_GTEST_PROP(DefinitionLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  Dice dice = AnyDice();
  RequireDefinitionsRead(Told(OddDefinitionFile(dice)));
}

RC_GTEST_PROP(DefinitionLaws, TheWriterWritesWhatAPlainOneWritesAndKeepsComments, ()) {
  Dice dice = AnyDice();
  const std::string text = Told(OddDefinitionFile(dice));
  RequireDefinitionsWritten(text, OddDefinitions(dice));
}

RC_GTEST_PROP(DefinitionLaws, ASaveChangesNothingAroundTheSectionAndGivesTheSameFields, ()) {
  Dice dice = AnyDice();
  const TidyDefinitionFile tidy = MakeTidyDefinitionFile(dice);
  Told(tidy.Text());
  RequireTidyDefinitionsKept(tidy);
}

RC_GTEST_PROP(ColorLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  Dice dice = AnyDice();
  RequireColorsRead(Told(OddColorFile(dice)));
}

RC_GTEST_PROP(ColorLaws, TheWriterWritesWhatAPlainOneWritesAndKeepsComments, ()) {
  Dice dice = AnyDice();
  const std::string text = Told(OddColorFile(dice));
  const std::vector<ColorEntry> colors = OddPalette(dice);
  RequireColorsWritten(text, colors, OddPairs(dice));
}

RC_GTEST_PROP(ColorLaws, AnUneditedSaveAddsOnlyTheBannerAndLineEndsToATidyFile, ()) {
  Dice dice = AnyDice();
  RequireTidyColorsKept(Told(TidyColorFile(dice)));
}

RC_GTEST_PROP(ExchangeLaws, AnImportGivesWhatAPlainWalkOverRowsAndLinesGives, ()) {
  Dice dice = AnyDice();
  const std::string text = Told(OddExchangeFile(dice));
  const std::vector<std::string> rows = OddNames(dice);
  RequireImported(text, rows, {});
  RequireImported(text, rows, OddVehicles(dice).cars);
}

RC_GTEST_PROP(ExchangeLaws, AnExportWritesWhatPlainWritingWrites, ()) {
  Dice dice = AnyDice();
  RequireExported(OddVehicles(dice));
}

RC_GTEST_PROP(ExchangeLaws, ExportedVehiclesComeBackWithAllTheirTexts, ()) {
  Dice dice = AnyDice();
  RequireExportComesBack(TidyVehicles(dice));
}

RC_GTEST_PROP(LanguageLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  Dice dice = AnyDice();
  const std::string first = Told(OddLanguage(dice, false));
  RequireLanguagesRead(first, Told(OddLanguage(dice, false)));
}

}  // namespace
}  // namespace wheelwright::testing
