#include "core/TextIndex.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

// The positions of a text, as the index tells them.
std::vector<int> PositionsOf(const std::string& text, const TextIndex& index) {
  std::vector<int> positions;
  for (int at = index.First(text); at != TextIndex::kNone; at = index.Next(at))
    positions.push_back(at);
  return positions;
}

TextIndex IndexOf(const std::vector<std::string>& texts) {
  TextIndex index;
  for (const std::string& text : texts) index.Add(text);
  return index;
}

TEST(TextIndexTest, AnEmptyIndexHoldsNothing) {
  const TextIndex index;
  EXPECT_EQ(index.Count(), 0);
  EXPECT_EQ(index.First(""), TextIndex::kNone);
}

TEST(TextIndexTest, AllPositionsOfATextComeInOrder) {
  const std::vector<std::string> texts = {"BUS", "VAN", "BUS", "", "BUS", ""};
  const TextIndex index = IndexOf(texts);
  EXPECT_EQ(index.Count(), 6);
  EXPECT_EQ(PositionsOf("BUS", index), (std::vector<int>{0, 2, 4}));
  EXPECT_EQ(PositionsOf("VAN", index), (std::vector<int>{1}));
  EXPECT_EQ(PositionsOf("", index), (std::vector<int>{3, 5}));
}

TEST(TextIndexTest, TextsAreComparedByteForByte) {
  const std::vector<std::string> texts = {"BUS", std::string("BUS\0", 4)};
  const TextIndex index = IndexOf(texts);
  EXPECT_EQ(PositionsOf("BUS", index), (std::vector<int>{0}));
  EXPECT_EQ(index.First("bus"), TextIndex::kNone);
  EXPECT_EQ(index.First("BU"), TextIndex::kNone);
  EXPECT_EQ(index.First("BUSX"), TextIndex::kNone);
}

}  // namespace
}  // namespace wheelwright::testing
