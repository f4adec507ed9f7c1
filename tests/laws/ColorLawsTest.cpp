// What holds for every colour file, however odd.
#include "core/Numbers.h"
#include "formats/ColorFile.h"
#include "support/ColorReference.h"
#include "support/DefinitionReference.h"
#include "support/Generators.h"
#include "support/HandlingReference.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

std::string WithoutLineEnds(std::string text) {
  std::erase_if(text, [](char byte) { return byte == '\r' || byte == '\n'; });
  return text;
}

std::string Number() {
  return *rc::gen::weightedElement<std::string>({{8, "0"},
                                                 {8, "1"},
                                                 {8, "200"},
                                                 {4, "300"},
                                                 {4, "-7"},
                                                 {2, "1.5"},
                                                 {1, "32768"},
                                                 {1, ""},
                                                 {1, "x"}});
}

std::string ColorLine() {
  return Number() + "," + Number() + "," + Number() +
         *rc::gen::weightedElement<std::string>(
             {{8, "\t"}, {8, "\t\t\t"}, {2, "  "}, {1, ",4\t"}}) +
         *rc::gen::weightedElement<std::string>({{8, "# 7 oak"},
                                                 {4, "# 12 elm tree"},
                                                 {2, ""},
                                                 {1, "#9 x"},
                                                 {1, "# oak"},
                                                 {1, "\t#\t1\tash"}});
}

std::string VehicleLine() {
  std::string line = *rc::gen::element<std::string>("bus", "cab ", "\tvan", "car", "");
  for (int numbers = *rc::gen::weightedElement<int>({{1, 0}, {1, 1}, {10, 2}, {1, 3}, {10, 4}});
       numbers > 0; --numbers) {
    line += *rc::gen::element<std::string>(",", ", ", ",\t") + Number();
  }
  return line + *rc::gen::weightedElement<std::string>({{16, ""}, {2, ","}, {1, ",,"}, {2, "# x"}});
}

std::string Comment() {
  return *rc::gen::element<std::string>("# A", "#", "# old greys", "    # x y", "     # x y",
                                        "#end", "# File created with Wheelwright V0",
                                        "     # File created with Wheelwright V0",
                                        "  # HOMEPAGE: https://wheelwright.example/ x");
}

std::string Mark() {
  return *rc::gen::element<std::string>("col", "end", "car", "col #", "col  # x", "end #",
                                        "end  # x", "car # x", "colours", "cars", "ending", "Col",
                                        " end", "CAR");
}

std::string AnyLine() {
  switch (*rc::gen::weightedElement<int>({{8, 0}, {8, 1}, {4, 2}, {3, 3}, {2, 4}, {1, 5}})) {
    case 0:
      return ColorLine();
    case 1:
      return VehicleLine();
    case 2:
      return Comment();
    case 3:
      return Mark();
    case 4:
      return *rc::gen::element<std::string>("", "", " ");
    default:
      return WithoutLineEnds(*AnyBytes());
  }
}

std::string TextOfLines(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line + *rc::gen::weightedElement<std::string>({{9, "\r\n"}, {1, "\r"}});
  }
  return text;
}

Texts SomeLines(std::string (*line)(), int most = 6) {
  Texts lines;
  for (int left = *rc::gen::inRange(0, most); left > 0; --left) lines.push_back(line());
  return lines;
}

// Files of a palette and of vehicles, and files without any order.
std::string AnyFile() {
  const std::string stray = TextOfLines(SomeLines(AnyLine, 3));
  if (*rc::gen::inRange(0, 4) == 0) return TextOfLines(SomeLines(AnyLine, 12));
  return stray + "col\r\n" + TextOfLines(SomeLines(ColorLine)) +
         TextOfLines(SomeLines(AnyLine, 2)) + Mark() + "\r\n" + TextOfLines(SomeLines(AnyLine, 3)) +
         "car\r\n" + TextOfLines(SomeLines(VehicleLine)) + TextOfLines(SomeLines(AnyLine, 2)) +
         Mark() + "\r\n";
}

std::string Joined(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// A file of one palette and one section of vehicles, laid out as a save lays them out. What lies
// around them is any lines but such that open a section or hold a banner.
struct GoodFile {
  std::string before;
  Texts colors;
  std::string between;
  Texts vehicles;
  std::string behind;

  std::string Text() const {
    return before + "col\r\n" + Joined(colors) + "end\r\n" + between + "car\r\n" +
           Joined(vehicles) + "end\r\n" + behind;
  }
};

std::string ForeignLine() {
  const std::string line = AnyLine();
  const bool isForeign =
      !HoldsBanner(line) && line.substr(0, 3) != "col" && line.substr(0, 3) != "car";
  return isForeign ? line : "text # kept";
}

GoodFile AnyGoodFile() {
  GoodFile file{Joined(SomeLines(ForeignLine)),
                {},
                Joined(SomeLines(ForeignLine)),
                {},
                Joined(SomeLines(ForeignLine))};
  const auto names = *rc::gen::nonEmpty(
      rc::gen::container<Texts>(rc::gen::element<std::string>("oak", "elm", "ASH", "\xFC", "a-b")));
  for (const std::string& name : names) {
    const auto numbers = *rc::gen::element<std::string>("0,0,0\t\t\t\t", "25,25,2\t\t\t\t",
                                                        "25,25,25\t\t\t", "-100,300,32767\t\t\t");
    file.colors.push_back(numbers + "# " + std::to_string(file.colors.size()) + " " + name);
  }
  const auto last = static_cast<int>(names.size());
  for (int vehicles = *rc::gen::inRange(1, 5); vehicles > 0; --vehicles) {
    std::string line = *rc::gen::element<std::string>("bus", "cab", "van", "car");
    for (int pairs = *rc::gen::inRange(1, 4); pairs > 0; --pairs) {
      line += ", " + std::to_string(*rc::gen::inRange(0, last)) + ", " +
              std::to_string(*rc::gen::inRange(0, last));
    }
    file.vehicles.push_back(line);
  }
  return file;
}

// A text that is read and then saved, each time over what the last save made of it.
struct Opened {
  explicit Opened(const std::string& text) : onDisk(text) {
    ReadPalette(text, palette);
    ReadPairs(text, pairs);
  }

  std::string Saved() {
    onDisk = WritePairs(WritePalette(onDisk, palette.colors) + "\r\n", pairs.records) + "\r\n";
    return onDisk;
  }

  std::string onDisk;
  PaletteSection palette;
  PairsSection pairs;
};

RC_GTEST_PROP(ColorLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  const std::string text = Told(AnyFile());
  PaletteSection palette;
  PairsSection pairs;
  const PlainColors plain = ReadColorsPlainly(text);
  const int paletteFailure = NumberThrownBy([&] { ReadPalette(text, palette); });
  RC_ASSERT(RecordsOf(palette.colors) == plain.colors);
  RC_ASSERT(static_cast<std::size_t>(palette.count) == plain.labels.size());
  RC_ASSERT(plain.firstPassEnded == (paletteFailure == 0));
  if (paletteFailure != 0) {
    RC_ASSERT(paletteFailure == plain.failure);
    return;
  }
  RC_ASSERT(NumberThrownBy([&] { ReadPairs(text, pairs); }) == plain.failure);
  RC_ASSERT(RecordsOf(pairs.records) == plain.carColors);
  RC_ASSERT(pairs.damagedLine.value_or(0) == plain.damagedLine);
  RC_ASSERT(pairs.names == plain.keys);
}

RC_GTEST_PROP(ColorLaws, TheWriterWritesWhatAPlainOneWrites, ()) {
  const std::string text = Told(AnyFile());
  PlainColors tables = ReadColorsPlainly(AnyFile());
  if (*rc::gen::arbitrary<bool>()) tables.colors.back().Index = -1;
  const std::string palette = WritePalette(text, TableOf(tables.colors)) + "\r\n";
  RC_ASSERT(palette == WritePalettePlainly(text, tables.colors));
  RC_ASSERT(WritePairs(palette, TableOf(tables.carColors)) ==
            WritePairsPlainly(palette, tables.carColors));
}

RC_GTEST_PROP(ColorLaws, AnUneditedSaveAddsTheBannerAndTwoEmptyLinesToAWellLaidOutFile, ()) {
  const std::string text = Told(AnyGoodFile().Text());
  Opened opened(text);
  RC_ASSERT(opened.Saved() == kBanner + text + "\r\n\r\n");
  RC_ASSERT(opened.Saved() == kBanner + text + "\r\n\r\n\r\n\r\n");
}

RC_GTEST_PROP(ColorLaws, ASaveChangesNothingAroundTheSections, ()) {
  GoodFile file = AnyGoodFile();
  Opened opened(Told(file.Text()));
  Table<ColorEntry>& colors = opened.palette.colors;
  const std::int16_t number = Checked16(colors.Count());
  colors.ExtendTo(number);
  colors.At(number) = {number, 0, 128, 255, "new"};
  file.colors.push_back("0,128,255\t\t\t# " + std::to_string(number) + " new");
  CarColorEntry& last = opened.pairs.records.At(opened.pairs.records.UpperBound());
  last.Color1.push_back(0);
  last.Color2.push_back(-7);
  file.vehicles.back() += ", 0, -7";
  RC_ASSERT(opened.Saved() == kBanner + file.Text() + "\r\n\r\n");
}

RC_GTEST_PROP(ColorLaws, TheSavedFileGivesTheSameTablesWithTheColorsNumberedAnew, ()) {
  Opened opened(Told(AnyGoodFile().Text()));
  const int changed = *rc::gen::inRange(0, opened.palette.colors.Count());
  opened.palette.colors.At(changed).Index = 99;
  const Opened again(opened.Saved());
  opened.palette.colors.At(changed).Index = static_cast<std::int16_t>(changed);
  RC_ASSERT(RecordsOf(again.palette.colors) == RecordsOf(opened.palette.colors));
  RC_ASSERT(RecordsOf(again.pairs.records) == RecordsOf(opened.pairs.records));
}

RC_GTEST_PROP(ColorLaws, ASaveKeepsEveryCommentOutsideThePalette, ()) {
  const GoodFile file = AnyGoodFile();
  const auto commentsOf = [](const std::string& text) {
    Texts comments;
    for (const std::string& line : PlainLines(text)) {
      if (line.find('#') != std::string::npos) comments.push_back(line);
    }
    return comments;
  };
  RC_ASSERT(commentsOf(Opened(Told(file.Text())).Saved()) == commentsOf(kBanner + file.Text()));
}

}  // namespace
}  // namespace wheelwright::testing
