#include "formats/ColorFile.h"
#include "oracle/ColorReference.h"
#include "oracle/FormatLaws.h"
#include "oracle/Law.h"
#include "oracle/PlainTexts.h"
#include "oracle/SaveLaws.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

struct Read {
  explicit Read(const std::string& text)
      : paletteFailure(NumberThrownBy([&] { ReadPalette(text, palette); })),
        pairsFailure(NumberThrownBy([&] { ReadPairs(text, pairs); })) {}

  bool IsWell() const {
    return paletteFailure == 0 && pairsFailure == 0 && !pairs.damagedLine && palette.count > 0 &&
           !pairs.names.empty();
  }

  PaletteSection palette;
  PairsSection pairs;
  int paletteFailure;
  int pairsFailure;
};

std::string Saved(const std::string& onDisk, const Table<ColorEntry>& colors,
                  const Table<CarColorEntry>& carColors) {
  return WritePairs(WritePalette(onDisk, colors) + "\r\n", carColors) + "\r\n";
}

// A vehicle whose line is a comment, ends its section or begins the palette.
bool LooksForeign(const CarColorEntry& entry) {
  const std::string& name = entry.ModelName;
  return name.find('#') != std::string::npos || name.starts_with("end") || name.starts_with("col");
}

// One palette and then one section of vehicles, both ended and without a comment.
bool AreSectionsPlain(const std::string& text) {
  const auto palette = text.find("col");
  const auto vehicles = text.find("car");
  return text.find('#') == std::string::npos && palette == text.rfind("col") &&
         vehicles == text.rfind("car") && text.find("\nend", palette) < vehicles &&
         text.find("\nend", vehicles) != std::string::npos;
}

void RequireSameAgain(const std::string& saved, const std::vector<ColorEntry>& colors,
                      const std::vector<CarColorEntry>& carColors) {
  const Read again(saved);
  Require(RecordsOf(again.palette.colors) == colors, "a saved file loads with the same colours");
  Require(RecordsOf(again.pairs.records) == carColors, "a saved file loads with the same pairs");
}

}  // namespace

void RequireColorsRead(const std::string& text) {
  const Read read(text);
  const PlainColors plain = ReadColorsPlainly(text);
  Require(RecordsOf(read.palette.colors) == plain.colors, "the palette is that of plain reading");
  Require(static_cast<std::size_t>(read.palette.count) == plain.labels.size(),
          "the colours read whole are counted");
  Require((read.paletteFailure == 0) == plain.firstPassEnded, "the palette fails as plain reading");
  if (!plain.firstPassEnded)
    return Require(read.paletteFailure == plain.failure, "the palette fails as plain reading does");
  Require(read.pairsFailure == plain.failure, "the pairs fail as plain reading does");
  Require(RecordsOf(read.pairs.records) == plain.carColors, "the pairs are those of plain reading");
  Require(read.pairs.damagedLine.value_or(0) == plain.damagedLine, "a damaged line ends the reading");
  Require(read.pairs.names == plain.keys, "the names are those of plain reading");
}

void RequireColorsWritten(const std::string& onDisk, const std::vector<ColorEntry>& colors,
                          const std::vector<CarColorEntry>& carColors) {
  const Table<ColorEntry> palette = TableOf(colors);
  const Table<CarColorEntry> pairs = TableOf(carColors);
  const std::string withPalette = WritePalette(onDisk, palette) + "\r\n";
  RequireSameText(withPalette, WritePalettePlainly(onDisk, colors),
                  "the palette is written as plain writing writes it");
  const std::string once = WritePairs(withPalette, pairs) + "\r\n";
  RequireSameText(once, WritePairsPlainly(withPalette, carColors) + "\r\n",
                  "the pairs are written as plain writing writes them");
  RequireSectionComments(onDisk, once, 5, {"col", "car"});
  if (std::any_of(carColors.begin(), carColors.end(), LooksForeign)) return;
  const std::string twice = Saved(once, palette, pairs);
  RequireOnlyGrowth(twice, Saved(twice, palette, pairs), "\r\n\r\n");
}

void RequireColorsSaved(const std::string& bytes) {
  const std::string text = NormalisedPlainly(bytes);
  const Read read(text);
  const std::vector<CarColorEntry> carColors = RecordsOf(read.pairs.records);
  if (!read.IsWell() || !AreSectionsPlain(text)) return;
  if (std::any_of(carColors.begin(), carColors.end(), LooksForeign)) return;
  // Without comments the colours are named by their position, of which the first word comes back.
  std::vector<ColorEntry> colors = RecordsOf(read.palette.colors);
  for (ColorEntry& color : colors) color.ColorName = "Color";
  RequireSameAgain(Saved(text, read.palette.colors, read.pairs.records), colors, carColors);
}

void RequireTidyColorsKept(const std::string& text) {
  Read read(text);
  Require(read.IsWell(), "a tidy file loads");
  const std::string once = Saved(text, read.palette.colors, read.pairs.records);
  RequireSameText(once, kBanner + text + "\r\n\r\n", "a save adds the banner and its line ends");
  RequireSameText(Saved(once, read.palette.colors, read.pairs.records), once + "\r\n\r\n",
                  "a second save adds its line ends");
  const std::vector<ColorEntry> colors = RecordsOf(read.palette.colors);
  read.palette.colors.At(0).Index = 99;
  RequireSameAgain(Saved(text, read.palette.colors, read.pairs.records), colors,
                   RecordsOf(read.pairs.records));
}

}  // namespace wheelwright::testing
