#include "core/TextIndex.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wheelwright::testing {
namespace {

using Texts = std::vector<std::string>;
using Positions = std::vector<int>;

struct IndexedTexts {
  explicit IndexedTexts(Texts itsTexts) : texts(std::move(itsTexts)) {
    for (const std::string& text : texts) index.Add(text);
  }

  // The positions of a text, as the index tells them.
  Positions Of(const std::string& text) const {
    const auto textAt = [this](int position) {
      return std::string_view(texts.at(static_cast<std::size_t>(position)));
    };
    Positions positions;
    for (int at = index.First(text, textAt); at != TextIndex::kNone; at = index.Next(at, textAt))
      positions.push_back(at);
    return positions;
  }

  Texts texts;
  TextIndex index;
};

TEST(TextIndexTest, AnEmptyIndexHoldsNothing) {
  const IndexedTexts none({});
  EXPECT_EQ(none.index.Count(), 0);
  EXPECT_EQ(none.Of(""), Positions());
}

TEST(TextIndexTest, AllPositionsOfATextComeInOrder) {
  IndexedTexts few({"BUS", "VAN", "BUS", "", "BUS", ""});
  EXPECT_EQ(few.index.Count(), 6);
  EXPECT_EQ(few.Of("BUS"), (Positions{0, 2, 4}));
  EXPECT_EQ(few.Of("VAN"), (Positions{1}));
  EXPECT_EQ(few.Of(""), (Positions{3, 5}));
  few.index.Reserve(1000);
  EXPECT_EQ(few.Of("BUS"), (Positions{0, 2, 4}));
}

TEST(TextIndexTest, TextsAreComparedByteForByte) {
  const IndexedTexts two({"BUS", std::string("BUS\0", 4)});
  EXPECT_EQ(two.Of("BUS"), (Positions{0}));
  for (const char* other : {"bus", "BU", "BUSX"}) EXPECT_EQ(two.Of(other), Positions()) << other;
}

TEST(TextIndexTest, AClearedIndexStartsAnew) {
  IndexedTexts texts({"BUS", "VAN"});
  texts.index.Clear();
  EXPECT_EQ(texts.Of("BUS"), Positions());
  texts.index.Add("BUS");
  EXPECT_EQ(texts.Of("BUS"), (Positions{0}));
}

}  // namespace
}  // namespace wheelwright::testing
