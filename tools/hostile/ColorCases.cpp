#include "hostile/Cases.h"
#include "hostile/LargeFile.h"

#include <string>

namespace wheelwright::hostile {
namespace {

constexpr int kColorIndex = 3;
// With the lines around them as many lines as are counted.
constexpr int kMostColors = 32762;

std::string OpenColors(const std::string& folder) { return JustOpen(folder, kColorIndex); }
std::string SaveColors(const std::string& folder) { return OpenAndSave(folder, kColorIndex); }

LargeFile Colors(const std::string& folder) { return LargeFile(folder + "/in.dat"); }

void AddPalette(LargeFile& file, int colors) {
  file.Add("col\r\n");
  for (int i = 0; i < colors; ++i) file.Add("1,2,3\t\t\t\t# " + std::to_string(i) + " c\r\n");
  file.Add("end\r\n");
}

// A vehicle whose pairs name one colour after the other.
void AddVehicle(LargeFile& file, int pairs, int colors) {
  file.Add("car\r\nbus");
  for (int i = 0; i < 2 * pairs; ++i) file.Add(", " + std::to_string(i % colors));
  file.Add("\r\nend\r\n");
}

void LongColorName(const std::string& folder) {
  LargeFile file = Colors(folder);
  file.Add("col\r\n1,2,3\t# 0 ").AddBytes("x", kLongLine).Add("\r\nend\r\n");
  AddVehicle(file, 1, 1);
}

void LongColorWithoutTab(const std::string& folder) {
  LargeFile file = Colors(folder);
  file.Add("col\r\n1,2,3 # 0 black ").AddBytes("y ", kLongLine).Add("\r\nend\r\n");
  AddVehicle(file, 1, 1);
}

void LongPairs(const std::string& folder) {
  LargeFile file = Colors(folder);
  AddPalette(file, 1);
  file.Add("car\r\nbus").AddBytes(",0", kLongLine).Add("\r\nend\r\n");
}

void ManyColors(const std::string& folder) {
  LargeFile file = Colors(folder);
  AddPalette(file, kMostColors);
  AddVehicle(file, 16000, kMostColors);
}

void TooManyColors(const std::string& folder) {
  LargeFile file = Colors(folder);
  AddPalette(file, 32767);
  AddVehicle(file, 1, 1);
}

void MostPairs(const std::string& folder) {
  LargeFile file = Colors(folder);
  AddPalette(file, 1);
  AddVehicle(file, 16383, 1);
}

void OnePairMore(const std::string& folder) {
  LargeFile file = Colors(folder);
  AddPalette(file, 1);
  AddVehicle(file, 16384, 1);
}

// Every list of the colour pages is filled, every pair of the vehicle visited.
std::string DeleteColorAndShowPairs(const std::string& folder) {
  Stage stage(folder);
  FrmMain& main = stage.Open("in.dat", kColorIndex).s.main;
  main.lstColors.ChooseByHand(kMostColors - 2);
  stage.s.Answer(true);
  stage.Click(main.cmdDeleteColor);
  main.SSTab3.ClickByHand(kPairsTab);
  main.lstCarColors.ChooseByHand(15999);
  stage.s.Answer(true);
  stage.Click(main.cmdRemColor);
  return stage.Outcome() + ", " + std::to_string(main.cmbColor1.Count()) + " colours, " +
         std::to_string(main.lstCarColors.Count()) + " pairs";
}

}  // namespace

std::vector<Case> ColorCases() {
  return {
      {"colour with a name of 200 MB", LongColorName, SaveColors,
       "normal, 1 names, 1 records, 0 problems; information: E116, 1 names, 1 records, 0 problems",
       2650},
      {"colour line of 200 MB without tab", LongColorWithoutTab, SaveColors,
       "normal, 1 names, 1 records, 0 problems; information: E116, 1 names, 1 records, 0 problems",
       750},
      {"vehicle with 100 million numbers", LongPairs, OpenColors,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 500},
      {"32,762 colours and 16,000 pairs", ManyColors, SaveColors,
       "normal, 1 names, 1 records, 0 problems; information: E116, 1 names, 1 records, 0 problems",
       50},
      {"the same, one of each deleted", ManyColors, DeleteColorAndShowPairs,
       "question: E153, 1 names, 1 records, 0 problems, 32761 colours, 15999 pairs", 50},
      {"32,767 colours", TooManyColors, OpenColors,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 50},
      {"vehicle with 16,383 pairs", MostPairs, SaveColors,
       "normal, 1 names, 1 records, 0 problems; information: E116, 1 names, 1 records, 0 problems",
       50},
      {"vehicle with 16,384 pairs", OnePairMore, OpenColors,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 50},
  };
}

}  // namespace wheelwright::hostile
