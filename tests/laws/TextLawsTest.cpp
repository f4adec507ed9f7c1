// What holds for every text, line and number, however odd.
#include "oracle/AnyDice.h"
#include "oracle/OddTexts.h"
#include "oracle/TextLaws.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

std::vector<std::string> TextsOfFew(Dice& dice, const std::string& characters) {
  std::vector<std::string> texts(static_cast<std::size_t>(dice.Below(12)));
  for (std::string& text : texts) text = FewOf(dice, characters, 7);
  return texts;
}

RC_GTEST_PROP(LineLaws, CommaFieldsAreThoseOfPlainSplittingInAnyOrderOfCalls, ()) {
  Dice dice = AnyDice();
  const std::string text = Told(FewOf(dice, "ab,,,, \t\xFC", 20));
  RequireCommaLaws(text, FewOf(dice, "nn/012345678", 20));
}

RC_GTEST_PROP(LineLaws, TokensAreThoseOfPlainSplitting, ()) {
  Dice dice = AnyDice();
  const std::string text = Told(FewOf(dice, "ab  \t\n1.", 100));
  RequireSpaceLaws(text);
  RequireTokenLaws(text);
}

RC_GTEST_PROP(NameLaws, AnIndexFindsWhatAPlainWalkFinds, ()) {
  Dice dice = AnyDice();
  const std::string letters = "aAbB\xC4\xE4\x8A\x9A\x9F\xFF% \xD7\xF7";
  const std::vector<std::string> names = TextsOfFew(dice, letters);
  std::vector<std::string> lines = TextsOfFew(dice, letters);
  for (const std::string& name : names) lines.push_back(AnyBytes(dice, 3) + name + "rest");
  RequireNameLaws(names, lines);
}

RC_GTEST_PROP(NumberLaws, NumbersAreToldByTheirFormAndRoundedToEven, ()) {
  Dice dice = AnyDice();
  RequireNumberLaws(Told(FewOf(dice, "0123456789.,eEdD+- ", 9)));
  RequireNumberLaws(Told(OddNumber(dice)));
  RequireNumberLaws(Told(std::to_string(dice.Between(-327680, 327679)) + "e-1"));
  RequireNumberLaws(Told(std::to_string(dice.Between(-33000, 33000))));
}

RC_GTEST_PROP(TextLaws, TextsAreOrderedAndSearchedByTheirLowerCaseLetters, ()) {
  Dice dice = AnyDice();
  const std::string word = FewOf(dice, "abAB[\xC4\xE4", 4);
  RequireTextLaws(Told(FewOf(dice, "abAB[\xC4\xE4", 12)), word);
  RequireTextLaws(Told(FewOf(dice, "xy", 5) + word + FewOf(dice, "ab\r\n ", 12)), word);
}

RC_GTEST_PROP(TextLaws, ListsAreSortedByLowerCaseLetters, ()) {
  Dice dice = AnyDice();
  std::vector<std::string> texts = TextsOfFew(dice, "aAbB\xC4\xE4[");
  for (std::string& text : texts)
    text.insert(0, static_cast<std::size_t>(dice.Below(10)), 'x')
        .append(static_cast<std::size_t>(dice.Below(2)), '\0');
  RequireOrderLaws(texts);
}

RC_GTEST_PROP(TextLaws, EveryByteSurvivesTheWayToTheScreenAndBack, ()) {
  Dice dice = AnyDice();
  RequireLetterLaws(Told(AnyBytes(dice, 60)));
}

}  // namespace
}  // namespace wheelwright::testing
