#include "languages/Report.h"

#include "languages/Sightings.h"

#include <map>

namespace wheelwright::languages {
namespace {

// " entry 17 (line 18, lblGewicht)"
std::string PlaceOf(std::size_t entry, const std::map<std::size_t, Sighting>& sightings) {
  const auto sighting = sightings.find(entry);
  const std::string control = sighting == sightings.end() ? "a message" : sighting->second.control;
  return " entry " + std::to_string(entry) + " (line " + std::to_string(entry + 1) + ", " + control + ")";
}

}  // namespace

std::string ReportOf(const std::string& file, const std::vector<Fault>& faults) {
  if (faults.empty()) return file + ": all is well\n";
  const std::map<std::size_t, Sighting> sightings = SightingsByEntry(AllViews());
  std::string report;
  for (const Fault& fault : faults) {
    report += file + ":" + (fault.entry ? PlaceOf(*fault.entry, sightings) : "") + " " + fault.text + "\n";
  }
  return report;
}

}  // namespace wheelwright::languages
