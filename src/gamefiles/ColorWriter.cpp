#include "gamefiles/ColorWriter.h"

#include "core/Text.h"
#include "gamefiles/Banner.h"
#include "gamefiles/Lines.h"

#include <cstddef>
#include <string_view>

namespace wheelwright {
namespace {

void AddLine(std::string& out, std::string_view line) { out.append(line).append(kLineEnd); }

// "1,2,3<tab><tab><tab><tab># 7 name": one tab fewer behind numbers of eight characters or more.
std::string PaletteLine(const ColorEntry& color) {
  constexpr std::size_t kLongNumbers = 8;
  std::string line = std::to_string(color.Red) + "," + std::to_string(color.Green) + "," +
                     std::to_string(color.Blue);
  line += line.size() < kLongNumbers ? "\t\t\t\t" : "\t\t\t";
  return line + "# " + std::to_string(color.Index) + " " + color.ColorName;
}

// "harrow, 0, 1, 5, 5"
std::string PairsLine(const CarColorEntry& entry) {
  std::string line = entry.ModelName;
  for (std::size_t pair = 0; pair < entry.Color1.size(); ++pair) {
    line +=
        ", " + std::to_string(entry.Color1[pair]) + ", " + std::to_string(entry.Color2.at(pair));
  }
  return line;
}

// A deletion that failed half-way leaves a colour with a negative number; it isn't written.
void AddPalette(std::string& out, const Table<ColorEntry>& colors) {
  for (const ColorEntry& color : colors.Walk()) {
    if (color.Index >= 0) AddLine(out, PaletteLine(color));
  }
}

void AddPairs(std::string& out, const Table<CarColorEntry>& carColors) {
  for (const CarColorEntry& entry : carColors.Walk()) AddLine(out, PairsLine(entry));
}

// Colour lines carry a comment of their own, so only a mark this far in front makes a line a
// comment.
bool IsPaletteComment(std::string_view line) {
  constexpr std::size_t kLastCommentPosition = 5;
  return line.substr(0, kLastCommentPosition).find('#') != std::string_view::npos;
}

std::string WithPaletteRewritten(const Table<ColorEntry>& colors, std::string_view text) {
  const std::string banner = FoldedCase(BannerBeginning('#'));
  const std::string homePage = FoldedCase(HomePageLine('#'));
  std::string out;
  AddLine(out, BannerLine('#'));
  AddLine(out, HomePageLine('#'));
  bool inSection = false;
  bool tableWritten = false;
  bool sectionDone = false;
  for (const std::string_view line : Lines(text)) {
    if (IsPaletteComment(line)) {
      const bool ours = HoldsIgnoringCase(line, banner) || HoldsIgnoringCase(line, homePage);
      if (!ours) AddLine(out, line);
      continue;
    }
    if (inSection && line.starts_with("end")) {
      inSection = false;
      sectionDone = true;
    }
    if (!inSection) {
      AddLine(out, line);
    } else if (!tableWritten) {
      AddPalette(out, colors);
      tableWritten = true;
    }
    if (!inSection && !sectionDone && line.starts_with("col")) inSection = true;
  }
  return out;
}

std::string WithPairsRewritten(const Table<CarColorEntry>& carColors, std::string_view text) {
  std::string out;
  bool inSection = false;
  bool tableWritten = false;
  for (const std::string_view line : Lines(text)) {
    if (line.find('#') != std::string_view::npos) {
      AddLine(out, line);
      continue;
    }
    if (inSection && line.starts_with("end")) inSection = false;
    if (!inSection) {
      AddLine(out, line);
    } else if (!tableWritten) {
      AddPairs(out, carColors);
      tableWritten = true;
    }
    if (!inSection && line.starts_with("car")) inSection = true;
  }
  return out;
}

}  // namespace

std::string RewriteColorFile(Session& session, const std::string& target) {
  const Vars& vars = session.vars;
  std::string palette = WithPaletteRewritten(vars.Colors, session.files.Read(vars.CurrentFile));
  palette += kLineEnd;
  std::string text = WithPairsRewritten(vars.CarColors, palette);
  // A second text without room doesn't leave the open file with the first.
  session.files.CheckRoom(target, text + std::string(kLineEnd));
  session.files.Write(vars.CurrentFile, palette);
  return text;
}

}  // namespace wheelwright
