#include "formats/LanguageFile.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

// Four entries "old" with a text read over them.
Texts Read(const std::string& text) {
  Texts entries(4, "old");
  ReadLanguage(text, entries);
  return entries;
}

TEST(LanguageReaderTest, EachLineIsTheEntryOfItsPosition) {
  EXPECT_EQ(Read("a\r\nb\r\nc\r\nd\r\n"), (Texts{"a", "b", "c", "d"}));
}

TEST(LanguageReaderTest, AnEmptyLineIsAnEmptyEntryAndKeepsItsPosition) {
  EXPECT_EQ(Read("a\r\n\r\n \r\nd\r\n"), (Texts{"a", "", " ", "d"}));
}

TEST(LanguageReaderTest, EntriesBehindTheEndOfTheFileStay) {
  EXPECT_EQ(Read(""), (Texts{"old", "old", "old", "old"}));
  EXPECT_EQ(Read("a\r\nb"), (Texts{"a", "b", "old", "old"}));
}

TEST(LanguageReaderTest, ALineMoreThanEntriesIsAnIndexFailureBehindTheLast) {
  Texts entries(2);
  EXPECT_EQ(NumberThrownBy([&] { ReadLanguage("a\r\nb\r\nc\r\n", entries); }), 9);
  EXPECT_EQ(entries, (Texts{"a", "b"}));
}

TEST(LanguageReaderTest, BackslashAndNInEitherCaseBreakTheLine) {
  EXPECT_EQ(Read("one\\ntwo\r\none\\Ntwo\\n\\nthree\\n\r\n"),
            (Texts{"one\r\ntwo", "one\r\ntwo\r\n\r\nthree\r\n", "old", "old"}));
}

TEST(LanguageReaderTest, ABackslashBeforeAnythingElseStays) {
  EXPECT_EQ(Read("a\\tb\\\\c\\\r\n\\\\n\r\nn\\"), (Texts{"a\\tb\\\\c\\", "\\\r\n", "n\\", "old"}));
}

TEST(LanguageReaderTest, ATextIsTakenByteForByte) {
  EXPECT_EQ(Read(" \tGr\xFC\xDF; # \x81 \r\n").front(), " \tGr\xFC\xDF; # \x81 ");
}

}  // namespace
}  // namespace wheelwright::testing
