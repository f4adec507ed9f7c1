// The list text of a colour of the palette, and the colour that such a text tells of.
#include "gamefiles/PaletteLabel.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Colors = std::vector<Rgb>;

ColorEntry Color(const std::string& name, Rgb color) {
  ColorEntry entry;
  entry.ColorName = name;
  entry.Red = static_cast<std::int16_t>(color[0]);
  entry.Green = static_cast<std::int16_t>(color[1]);
  entry.Blue = static_cast<std::int16_t>(color[2]);
  return entry;
}

TEST(PaletteLabelTest, ALabelIsTheNameAndTheThreeNumbers) {
  EXPECT_EQ(PaletteLabel(Color("Color94", {0, 128, 255})), "Color94 - 0,128,255");
}

TEST(PaletteLabelTest, ALabelTellsItsColorWhateverTheNameHolds) {
  for (const char* name : {"Color94", "Color 94", "", " - 1,2,3", "1,2,3 - ", "a\tb", "9"}) {
    EXPECT_EQ(ColorsInLabel(PaletteLabel(Color(name, {7, 128, 255}))), Colors({{7, 128, 255}})) << name;
  }
}

TEST(PaletteLabelTest, ToldComponentsAreCutToTheRangeOfAColor) {
  EXPECT_EQ(ColorsInLabel("x - -5,300,32767"), Colors({{0, 255, 255}}));
  EXPECT_EQ(ColorsInLabel("x - -32768,0,256"), Colors({{0, 0, 255}}));
}

TEST(PaletteLabelTest, AnyOtherTextTellsNoColor) {
  for (const char* text :
       {"", "black", "1,2,3", "x - ", "x - 1", "x - 1,2", "x - 1,2,", "x - 1,2,3,4", "x - 1,2,3 ",
        "x - 1;2;3", "x - 1,,3", "x - 1,2,red", "x - 1,2,3red", "x - +1,2,3", "x - 1,2,99999999999"}) {
    EXPECT_EQ(ColorsInLabel(text), Colors()) << text;
  }
}

}  // namespace
}  // namespace wheelwright::testing
