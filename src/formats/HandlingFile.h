// handling.cfg.
//
//   ; comment                                        a ";" in the first 14 columns
//   TAXI          1450.0 1.9 4.5 ...  0000003 0 1     a vehicle, 33 tokens
//   % TAXI ...    ! TAXI ...    $ TAXI ...            marks of a vehicle, in lines of their own
//
// Reader and writer tell lines apart by different rules; keep them apart.
#pragma once

#include "core/Table.h"
#include "formats/HandlingLine.h"

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

struct HandlingFile {
  std::vector<std::string> names;  // cut at the head of their lines, in the order of a sorted list
  std::string author;
  std::string created;
  Table<Car> cars;
  LineProblems problems;
  bool hasOddNames = false;  // whether the first pass met a name that fails its check
};

// Reads the names in a first pass, the vehicles and their marks in a second. Failure 9 if a "%"
// line names a vehicle without a record, or a "!" or "$" line one whose place among the names is
// behind the records; failure 6 past 32,767 vehicles. What was read until then is in the file.
void ReadHandling(std::string_view text, HandlingFile& file);

// What a file of vehicles is made of, looked at where it lies: nothing is copied to be written.
struct WrittenVehicles {
  const std::vector<std::string>& names;
  const Table<Car>& cars;
  const std::string& author;
  const std::string& created;
};

// Visits the records of each name, in the order of the names, with the name's position. A name
// without a record has none; failure 9 if there are names and the table is unallocated.
template <class Visit>
void ForEachNamedVehicle(const WrittenVehicles& vehicles, const Visit& visit) {
  int position = 0;
  for (const std::string& name : vehicles.names) {
    const Table<Car>& cars = vehicles.cars;
    for (int i = cars.First(&Car::CarName, name); i != cars.kNone; i = cars.Next(i)) {
      visit(position, cars.At(i));
    }
    ++position;
  }
}

// The new text of a file, without the line end of the final write. Comments and special lines of
// the file as it lies on disk are copied; all vehicles, in the order of the names, take the place
// of the first line that is neither.
std::string WriteHandling(std::string_view onDisk, const WrittenVehicles& vehicles);

// The first columns of a handling line, by which readers and writer, each in its own way, tell what
// the line is.
inline constexpr std::size_t kHeadColumns = 14;

inline std::string_view HeadOf(std::string_view line) { return line.substr(0, kHeadColumns); }

}  // namespace wheelwright
