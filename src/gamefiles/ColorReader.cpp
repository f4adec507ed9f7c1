#include "gamefiles/ColorReader.h"

#include "core/Numbers.h"
#include "gamefiles/CommaFields.h"
#include "gamefiles/Lines.h"
#include "gamefiles/PaletteLabel.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wheelwright {
namespace {

constexpr std::size_t kLongestLineWithoutColor = 4;
constexpr int kMandatoryFields = 3;

// Works on the raw line: without a tab the colour is black, whatever the line says.
void TakeColor(std::string_view line, std::int16_t index, ColorEntry& color) {
  color.Index = index;
  if (const std::size_t tab = line.find('\t'); tab != std::string_view::npos) {
    std::string numbers(line.substr(0, tab + 1));
    color.Red = ToInteger16(GetCommaField(numbers, 0));
    color.Green = ToInteger16(GetCommaField(numbers, 1));
    color.Blue = ToInteger16(GetCommaField(numbers, 2));
  }
  if (const std::size_t mark = line.find('#'); mark != std::string_view::npos) {
    std::string comment(line.substr(mark));
    color.ColorName = GetSpaceField(comment, 2);
  } else {
    color.ColorName = "Color " + std::to_string(index);
  }
}

void LoadPalette(Session& session, std::string_view text) {
  Table<ColorEntry>& colors = session.vars.Kopie_Colors;
  session.main.lstColors.Clear();
  colors.Reset();
  Counter16 records;
  bool inSection = false;
  for (const std::string_view line : Lines(text)) {
    if (inSection && line.starts_with("end")) break;
    if (inSection && line.size() > kLongestLineWithoutColor) {
      colors.ExtendTo(records.Value());
      ColorEntry& color = colors.At(records.Value());
      TakeColor(line, records.Value(), color);
      session.main.lstColors.AddRow(PaletteLabel(color));
      records.Step();
    }
    if (line.starts_with("col")) inSection = true;
  }
  session.vars.Colors = colors;
}

// Half a pair reaches the conversion of a field that isn't there, which fails.
void TakePairs(CommaLine& line, CarColorEntry& entry) {
  const int count = line.Count();
  for (int i = 0; i <= count - 2; i += 2) {
    const auto pair = static_cast<std::size_t>(i / 2);
    entry.Color1.resize(pair + 1);
    entry.Color2.resize(pair + 1);
    entry.Color1[pair] = ToInteger16(line.Field(i + 1));
    entry.Color2[pair] = ToInteger16(line.Field(i + 2));
  }
}

std::optional<int> LoadPairs(Session& session, std::string_view text) {
  Table<CarColorEntry>& carColors = session.vars.Kopie_CarColors;
  carColors.Reset();
  std::vector<std::string> keys;
  Counter16 records;
  Counter16 lineNumber;
  bool inSection = false;
  for (const std::string_view rawLine : Lines(text)) {
    lineNumber.Step();
    const std::string_view line = BeforeMark(rawLine, '#');
    if (line.starts_with("end")) inSection = false;
    if (inSection && !line.empty()) {
      CommaLine fields(line);
      if (fields.Count() < kMandatoryFields) return lineNumber.Value();
      carColors.ExtendTo(records.Value());
      CarColorEntry& entry = carColors.At(records.Value());
      entry.ModelName = fields.Field(0);
      keys.push_back(entry.ModelName);
      TakePairs(fields, entry);
      records.Step();
    }
    if (line.starts_with("car")) inSection = true;
  }
  session.main.cmbAutos.AddRows(std::move(keys));
  return std::nullopt;
}

void FillPickLists(FrmMain& main) {
  main.cmbColor1.AddRows(main.lstColors.Rows());
  main.cmbColor2.AddRows(main.lstColors.Rows());
  main.cmbColor1.Choose(0);
  main.cmbColor2.Choose(0);
}

}  // namespace

std::optional<int> LoadColorFile(Session& session) {
  const std::string text = session.files.Read(session.vars.CurrentFile);
  LoadPalette(session, text);
  if (const std::optional<int> damagedLine = LoadPairs(session, text)) return damagedLine;
  FillPickLists(session.main);
  session.vars.CarColors = session.vars.Kopie_CarColors;
  session.main.cmbAutos.Choose(0);
  return std::nullopt;
}

}  // namespace wheelwright
