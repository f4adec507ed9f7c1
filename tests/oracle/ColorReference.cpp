#include "oracle/ColorReference.h"

#include "core/Numbers.h"
#include "oracle/PlainTexts.h"
#include "support/TableTexts.h"

#include <sstream>

namespace wheelwright::testing {
namespace {

bool BeginsWith(const std::string& line, const std::string& word) {
  return line.substr(0, word.size()) == word;
}

bool Holds(const std::string& line, char mark) { return line.find(mark) != std::string::npos; }

std::string SpaceField(std::string text, int index) {
  for (char& byte : text) {
    if (byte == '\t') byte = ' ';
  }
  std::istringstream words(text);
  std::string word;
  while (std::getline(words, word, ' ')) {
    if (!word.empty() && index-- == 0) return word;
  }
  return "";
}

void TakeColor(const std::string& line, ColorEntry& color) {
  if (Holds(line, '\t')) {
    std::string numbers = line.substr(0, line.find('\t') + 1);
    color.Red = ToInteger16(TakeCommaField(numbers, 0));
    color.Green = ToInteger16(TakeCommaField(numbers, 1));
    color.Blue = ToInteger16(TakeCommaField(numbers, 2));
  }
  color.ColorName = "Color " + std::to_string(color.Index);
  if (Holds(line, '#')) color.ColorName = SpaceField(line.substr(line.find('#')), 2);
}

void FirstPass(const std::vector<std::string>& lines, PlainColors& read) {
  bool inSection = false;
  for (const std::string& line : lines) {
    if (inSection && BeginsWith(line, "end")) break;
    if (inSection && line.size() > 4) {
      read.colors.emplace_back();
      read.colors.back().Index = static_cast<std::int16_t>(read.colors.size() - 1);
      TakeColor(line, read.colors.back());
      read.labels.push_back(PlainLabel(read.colors.back()));
    }
    if (BeginsWith(line, "col")) inSection = true;
  }
}

void TakePairs(std::string line, CarColorEntry& entry) {
  const std::size_t count = SplitAtCommas(line).size();
  entry.Pairs.resize(1);
  for (std::size_t i = 0; i + 2 <= count; i += 2) {
    entry.Pairs.resize(i / 2 + 1);
    entry.Pairs[i / 2].Color1 = ToInteger16(TakeCommaField(line, i + 1));
    entry.Pairs[i / 2].Color2 = ToInteger16(TakeCommaField(line, i + 2));
  }
}

void SecondPass(const std::vector<std::string>& lines, PlainColors& read) {
  bool inSection = false;
  int number = 0;
  for (const std::string& rawLine : lines) {
    ++number;
    const std::string line = rawLine.substr(0, rawLine.find('#'));
    if (inSection && BeginsWith(line, "end")) inSection = false;
    if (inSection && !line.empty()) {
      std::string cleaned = WithoutBlanksAndTabs(line);
      if (SplitAtCommas(cleaned).size() < 3) {
        read.damagedLine = number;
        return;
      }
      read.keys.push_back(TakeCommaField(cleaned, 0));
      read.carColors.emplace_back().ModelName = read.keys.back();
      TakePairs(cleaned, read.carColors.back());
    }
    if (BeginsWith(line, "car")) inSection = true;
  }
}

std::string LineOf(const ColorEntry& color) {
  const std::string numbers =
      std::to_string(color.Red) + "," + std::to_string(color.Green) + "," + std::to_string(color.Blue);
  return numbers + std::string(numbers.size() < 8 ? 4 : 3, '\t') + "# " + std::to_string(color.Index) + " " +
         color.ColorName + "\r\n";
}

std::string LineOf(const CarColorEntry& entry) {
  std::string line = entry.ModelName;
  for (const auto& [first, second] : entry.Pairs) {
    line += ", " + std::to_string(first) + ", " + std::to_string(second);
  }
  return line + "\r\n";
}

// The name of the last colour with this number, the name from before if there is none.
void ShowNumber(const std::vector<ColorEntry>& colors, std::int16_t& number, std::string& name) {
  for (const ColorEntry& color : colors) {
    if (color.Index == number) name = color.ColorName;
  }
  if (!name.empty()) return;
  number = colors.front().Index;
  name = colors.front().ColorName;
}

}  // namespace

PlainColors ReadColorsPlainly(const std::string& text) {
  PlainColors read;
  const std::vector<std::string> lines = PlainLines(text);
  try {
    FirstPass(lines, read);
    read.firstPassEnded = true;
    SecondPass(lines, read);
  } catch (const Failure& failure) {
    read.failure = static_cast<int>(failure.Number());
  }
  if (read.colors.empty()) read.colors.resize(1);
  if (read.carColors.empty()) read.carColors.resize(1);
  return read;
}

std::string PlainLabel(const ColorEntry& color) {
  std::ostringstream label;
  label << color.ColorName << " - " << color.Red << ',' << color.Green << ',' << color.Blue;
  return label.str();
}

std::vector<std::string> ShowPairsPlainly(const std::vector<ColorEntry>& colors, CarColorEntry& entry) {
  std::vector<std::string> rows;
  std::string first;
  std::string second;
  for (ColorPair& pair : entry.Pairs) {
    ShowNumber(colors, pair.Color1, first);
    ShowNumber(colors, pair.Color2, second);
    rows.push_back(first + " - " + second);
  }
  return rows;
}

std::string WritePalettePlainly(const std::string& onDisk, const std::vector<ColorEntry>& colors) {
  std::string buffer = kBanner;
  bool inSection = false;
  bool tableWritten = false;
  bool sectionDone = false;
  for (const std::string& line : PlainLines(onDisk)) {
    if (Holds(line.substr(0, 5), '#')) {
      if (!HoldsBanner(line)) buffer += line + "\r\n";
      continue;
    }
    if (inSection && BeginsWith(line, "end")) {
      inSection = false;
      sectionDone = true;
    }
    if (!inSection) buffer += line + "\r\n";
    if (inSection && !tableWritten) {
      for (const ColorEntry& color : colors) {
        if (color.Index >= 0) buffer += LineOf(color);
      }
      tableWritten = true;
    }
    if (BeginsWith(line, "col") && !inSection && !sectionDone) inSection = true;
  }
  return buffer + "\r\n";
}

std::string WritePairsPlainly(const std::string& onDisk, const std::vector<CarColorEntry>& carColors) {
  std::string buffer;
  bool inSection = false;
  bool tableWritten = false;
  for (const std::string& line : PlainLines(onDisk)) {
    if (Holds(line, '#')) {
      buffer += line + "\r\n";
      continue;
    }
    if (inSection && BeginsWith(line, "end")) inSection = false;
    if (!inSection) buffer += line + "\r\n";
    if (inSection && !tableWritten) {
      for (const CarColorEntry& entry : carColors) buffer += LineOf(entry);
      tableWritten = true;
    }
    if (!inSection && BeginsWith(line, "car")) inSection = true;
  }
  return buffer;
}

}  // namespace wheelwright::testing
