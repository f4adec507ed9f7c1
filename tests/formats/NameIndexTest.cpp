#include "formats/NameIndex.h"

#include <gtest/gtest.h>
#include <ostream>

namespace wheelwright {

void PrintTo(const NameHit& hit, std::ostream* out) {
  *out << hit.position << (hit.begins ? " begins" : " inside");
}

}  // namespace wheelwright

namespace wheelwright::testing {
namespace {

using Names = std::vector<std::string>;
using Hits = std::vector<NameHit>;

Hits HitsAtTheBeginning(const Names& names, std::string_view line) {
  return NameIndex(names).Beginning(line);
}

Hits HitsAnywhere(const Names& names, std::string_view line) { return NameIndex(names).Anywhere(line); }

TEST(NameIndexTest, ANameBeginsALineByteForByte) {
  const Names names = {"BUS", "TAXI"};
  EXPECT_EQ(HitsAtTheBeginning(names, "BUS 1.0 TAXI"), (Hits{{0, true}}));
  EXPECT_EQ(HitsAtTheBeginning(names, "TAXI"), (Hits{{1, true}}));
  EXPECT_EQ(HitsAtTheBeginning(names, "bus 1.0"), Hits{});
  EXPECT_EQ(HitsAtTheBeginning(names, " BUS"), Hits{});
  EXPECT_EQ(HitsAtTheBeginning(names, "TAX"), Hits{});
  EXPECT_EQ(HitsAtTheBeginning(names, ""), Hits{});
}

TEST(NameIndexTest, NamesThatAreThePrefixOfAnotherComeInTheOrderOfTheList) {
  EXPECT_EQ(HitsAtTheBeginning({"BUSX", "B", "VAN", "BUS"}, "BUSXY"),
            (Hits{{0, true}, {1, true}, {3, true}}));
}

TEST(NameIndexTest, EqualNamesAreAllFound) {
  EXPECT_EQ(HitsAtTheBeginning({"BUS", "VAN", "BUS"}, "BUS"), (Hits{{0, true}, {2, true}}));
  EXPECT_EQ(HitsAnywhere({"BUS", "bus", "BUS"}, "a BUS"), (Hits{{0, false}, {1, false}, {2, false}}));
}

TEST(NameIndexTest, AnywhereIgnoresCaseAlsoOfUmlauts) {
  EXPECT_EQ(HitsAnywhere({"M\xC4RZ", "TAXI"}, "% m\xE4rz"), (Hits{{0, false}}));
  EXPECT_EQ(HitsAnywhere({"\xF6"}, "\xD6"), (Hits{{0, false}}));
}

TEST(NameIndexTest, AnywhereTellsWhetherTheLineBeginsWithTheName) {
  EXPECT_EQ(HitsAnywhere({"BUS", "bus", "US"}, "BUS % BUS"), (Hits{{0, true}, {1, false}, {2, false}}));
}

TEST(NameIndexTest, ANameIsOneHitHoweverOftenItStandsInTheLine) {
  EXPECT_EQ(HitsAnywhere({"A", "AA"}, "AAAA"), (Hits{{0, true}, {1, true}}));
}

TEST(NameIndexTest, AnEmptyNameIsInEveryLine) {
  EXPECT_EQ(HitsAtTheBeginning({"BUS", ""}, ""), (Hits{{1, true}}));
  EXPECT_EQ(HitsAnywhere({"BUS", "", ""}, ""), (Hits{{1, true}, {2, true}}));
  EXPECT_EQ(HitsAnywhere({"", "x"}, "y"), (Hits{{0, true}}));
}

TEST(NameIndexTest, NoNamesGiveNoHits) {
  EXPECT_EQ(HitsAtTheBeginning({}, "BUS"), Hits{});
  EXPECT_EQ(HitsAnywhere({}, "BUS"), Hits{});
}

TEST(NameIndexTest, OneIndexServesManyLines) {
  const Names names = {"BUS", "TAXI"};
  NameIndex index(names);
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(index.Anywhere("a bus"), (Hits{{0, false}}));
    EXPECT_EQ(index.Anywhere("a taxi and a bus"), (Hits{{0, false}, {1, false}}));
    EXPECT_EQ(index.Beginning("TAXI"), (Hits{{1, true}}));
  }
}

}  // namespace
}  // namespace wheelwright::testing
