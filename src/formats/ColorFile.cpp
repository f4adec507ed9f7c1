#include "formats/ColorFile.h"

namespace wheelwright {
namespace {

constexpr std::size_t kLongestLineWithoutColor = 4;

// Works on the raw line: without a tab the colour is black, whatever the line says.
void TakeColor(std::string_view line, std::int16_t index, ColorEntry& color) {
  color.Index = index;
  if (const std::size_t tab = line.find('\t'); tab != std::string_view::npos) {
    CommaLine numbers(line.substr(0, tab));
    color.Red = ToInteger16(numbers.GetCommaField(0));
    color.Green = ToInteger16(numbers.GetCommaField(1));
    color.Blue = ToInteger16(numbers.GetCommaField(2));
  }
  if (const std::size_t mark = line.find('#'); mark != std::string_view::npos) {
    color.ColorName = SpaceLine(line.substr(mark)).GetSpaceField(2);
  } else {
    color.ColorName = "Color " + std::to_string(index);
  }
}

// Half a pair reaches the conversion of a field that isn't there, which fails.
void TakePairs(CommaLine& line, CarColorEntry& entry) {
  const int count = line.CountCommaFields();
  entry.Pairs.reserve(static_cast<std::size_t>(count / 2));
  for (int i = 0; i <= count - 2; i += 2) {
    ColorPair& pair = entry.Pairs.emplace_back();
    pair.Color1 = ToInteger16(line.GetCommaField(i + 1));
    pair.Color2 = ToInteger16(line.GetCommaField(i + 2));
  }
}

// "1,2,3<tab><tab><tab><tab># 7 name": one tab fewer behind numbers of eight characters or more.
void AddColorLine(std::string& out, const ColorEntry& color) {
  constexpr std::size_t kLongNumbers = 8;
  const std::string numbers =
      std::to_string(color.Red) + "," + std::to_string(color.Green) + "," + std::to_string(color.Blue);
  out.append(numbers).append(numbers.size() < kLongNumbers ? "\t\t\t\t" : "\t\t\t");
  out.append("# ").append(std::to_string(color.Index)).append(" ");
  AddLine(out, color.ColorName);
}

// "harrow, 0, 1, 5, 5"
void AddPairsLine(std::string& out, const CarColorEntry& entry) {
  out += entry.ModelName;
  for (const ColorPair& pair : entry.Pairs) {
    out.append(", ").append(std::to_string(pair.Color1));
    out.append(", ").append(std::to_string(pair.Color2));
  }
  out += kLineEnd;
}

}  // namespace

void ReadPalette(std::string_view text, PaletteSection& section) {
  section.colors.Reset();
  Counter16 records;
  bool inSection = false;
  for (const std::string_view line : Lines(text)) {
    if (inSection && line.starts_with("end")) break;
    if (inSection && line.size() > kLongestLineWithoutColor) {
      section.colors.ExtendTo(records.Value());
      TakeColor(line, records.Value(), section.colors.At(records.Value()));
      ++section.count;
      records.Step();
    }
    if (line.starts_with("col")) inSection = true;
  }
}

void ReadPairs(std::string_view text, PairsSection& section) {
  ReadSection(text, {.opening = "car", .mandatoryFields = 3, .nameField = 0}, section,
              [&](CommaLine& line, CarColorEntry& entry) {
                entry.ModelName = section.names.back();
                TakePairs(line, entry);
              });
}

// Colour lines carry a comment of their own, so only a "#" this far in front makes a line a
// comment. A deletion that failed half-way leaves a colour with a negative number; it isn't
// written.
std::string WritePalette(std::string_view onDisk, const Table<ColorEntry>& colors) {
  constexpr SectionRules kPalette = {
      .opening = "col", .commentColumns = 5, .hasBanner = true, .onlyOnce = true};
  return WithSectionRewritten(onDisk, kPalette, [&](std::string& out) {
    for (const ColorEntry& color : colors.Walk()) {
      if (color.Index >= 0) AddColorLine(out, color);
    }
  });
}

std::string WritePairs(std::string_view withPalette, const Table<CarColorEntry>& carColors) {
  constexpr SectionRules kPairs = {
      .opening = "car", .commentColumns = std::string_view::npos, .hasBanner = false, .onlyOnce = false};
  return WithSectionRewritten(withPalette, kPairs, [&](std::string& out) {
    for (const CarColorEntry& entry : carColors.Walk()) AddPairsLine(out, entry);
  });
}

}  // namespace wheelwright
