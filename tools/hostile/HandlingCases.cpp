#include "hostile/Cases.h"
#include "hostile/LargeFile.h"

#include <string>

namespace wheelwright::hostile {
namespace {

using testing::VehicleLineOf;

constexpr int kHandlingIndex = 1;
constexpr int kMostRecords = 32767;

std::string OpenHandling(const std::string& folder) { return JustOpen(folder, kHandlingIndex); }
std::string SaveHandling(const std::string& folder) { return OpenAndSave(folder, kHandlingIndex); }

std::string Line(const std::string& name) { return VehicleLineOf(name) + "\r\n"; }

LargeFile Handling(const std::string& folder) { return LargeFile(folder + "/in.cfg"); }

void ManyTokens(const std::string& folder) {
  Handling(folder).Add(Line("BUS")).Add("VAN           ").AddBytes(" 1", kLongLine).Add("\r\n");
}

void LongToken(const std::string& folder) {
  Handling(folder).Add("BUS            ").AddBytes("x", kLongLine).Add("\r\n");
}

void LongComment(const std::string& folder) {
  Handling(folder).Add("; ").AddBytes("author ", kLongLine).Add("\r\n").Add(Line("BUS"));
}

void LongMarkedLine(const std::string& folder) {
  Handling(folder).Add(Line("BUS")).Add(Line("VAN")).Add("% ").AddBytes("bus van ", kLongLine);
}

// Seven letters that no other name begins with.
std::string NameOfNumber(int number) {
  std::string name = "N";
  for (int digit = 0; digit < 6; ++digit, number /= 10) {
    name += static_cast<char>('0' + number % 10);
  }
  return name;
}

void ManyNames(const std::string& folder) {
  LargeFile file = Handling(folder);
  for (int i = 0; i < kMostRecords; ++i) file.Add(Line(NameOfNumber(i)));
}

// An indented line is a row of the list, and begins with no name.
void ManyRowsWithoutRecords(const std::string& folder) {
  LargeFile file = Handling(folder);
  for (int i = 0; i < 1'000'000; ++i) file.Add(" " + NameOfNumber(i) + " 1500.0 1.9\r\n");
}

void ManyMarkedNames(const std::string& folder) {
  std::string names;
  LargeFile file = Handling(folder);
  for (int i = 0; i < kMostRecords; ++i) {
    file.Add(Line(NameOfNumber(i)));
    names += NameOfNumber(i) + " ";
  }
  file.Add("% ").AddBytes(names, kLongLine).Add("\r\n");
}

// All words of two letters up to the 14 that a name may have: each is the beginning of two others.
void NamesInNames(const std::string& folder) {
  constexpr int kLongest = 14;
  LargeFile file = Handling(folder);
  file.Add(Line("C"));
  for (int length = 1; length <= kLongest; ++length) {
    for (int word = 0; word < 1 << length; ++word) {
      std::string name;
      for (int letter = 0; letter < length; ++letter) {
        name += (word >> letter & 1) != 0 ? 'A' : 'B';
      }
      file.Add(Line(name));
    }
  }
}

// Each of the lines makes a record for each of the names: 32,761.
void EqualNames(const std::string& folder) {
  LargeFile file = Handling(folder);
  for (int i = 0; i < 181; ++i) file.Add(Line("BUS"));
}

void OneEqualNameMore(const std::string& folder) {
  LargeFile file = Handling(folder);
  for (int i = 0; i < 182; ++i) file.Add(Line("BUS"));
}

void BareLineFeeds(const std::string& folder) { Handling(folder).AddBytes("\n", kLongLine); }

void EmptyLines(const std::string& folder) { Handling(folder).AddBytes("\r", kLongLine); }

void ImportedNames(const std::string& folder) {
  NamesInNames(folder);
  LargeFile(folder + "/own.cfg").Add(Line("BUS"));
}

std::string ImportThem(const std::string& folder) {
  Stage stage(folder);
  stage.Open("own.cfg", kHandlingIndex);
  stage.s.Choose(stage.In("in.cfg"));
  return stage.Click(stage.s.main.cmdImportCar).Outcome();
}

}  // namespace

std::vector<Case> HandlingCases() {
  return {
      {"vehicle line, 200 MB of tokens", ManyTokens, OpenHandling,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 250},
      {"vehicle line, one token of 200 MB", LongToken, SaveHandling,
       "normal, 1 names, 1 records, 2 problems; information: E116, 1 names, 1 records, 2 problems",
       1450},
      {"comment line of 200 MB", LongComment, SaveHandling,
       "normal, 1 names, 1 records, 0 problems; information: E116, 1 names, 1 records, 0 problems",
       750},
      {"marked line of 200 MB", LongMarkedLine, SaveHandling,
       "normal, 2 names, 2 records, 0 problems; information: E116, 2 names, 2 records, 0 problems",
       750},
      {"32,767 names", ManyNames, SaveHandling,
       "normal, 32767 names, 32767 records, 0 problems; information: E116, 32767 names, 32767 "
       "records, 0 problems",
       100},
      {"1,000,000 rows without records", ManyRowsWithoutRecords, OpenHandling,
       "normal, 1000000 names, 1 records, 0 problems", 200},
      {"32,767 names, all in marked 200 MB", ManyMarkedNames, OpenHandling,
       "normal, 32767 names, 32767 records, 0 problems", 550},
      {"32,767 names that begin others", NamesInNames, OpenHandling,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 100},
      {"the same names imported", ImportedNames, ImportThem,
       "error: Error: 6 - Overflow, 32768 names, 32768 records, 0 problems", 100},
      {"181 equal names", EqualNames, SaveHandling,
       "normal, 181 names, 32761 records, 0 problems; information: E116, 181 names, 32761 records, "
       "0 problems",
       1600},
      {"182 equal names", OneEqualNameMore, OpenHandling,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 50},
      {"200 MB of bare line feeds", BareLineFeeds, OpenHandling,
       "error: Error: 380 - Invalid property value, 0 names, 1 records, 0 problems", 800},
      {"200 MB of empty lines", EmptyLines, OpenHandling,
       "error: Error: 380 - Invalid property value, 0 names, 1 records, 0 problems", 250},
  };
}

}  // namespace wheelwright::hostile
