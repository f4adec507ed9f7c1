// What an import and an export leave behind, held against the plain ones.
#include "oracle/ExchangeReference.h"
#include "soak/Moment.h"

namespace wheelwright::soak {
namespace {

std::vector<Car> AsDisplayed(std::vector<Car> cars) {
  for (Car& car : cars) Display(car);
  return cars;
}

}  // namespace

void CheckImport(const Moment& moment) {
  const SessionState& before = moment.before;
  const SessionState& after = moment.after;
  const auto file = before.disk.find(moment.folder.NameOf(moment.step.File()));
  if (file == before.disk.end() || before.working.cars.empty()) {
    Require(after.working == before.working, "an import of nothing has changed tables");
    return;
  }
  const auto plain = testing::ImportPlainly(file->second, before.vehicles, before.working.cars);
  Require(after.vehicles == plain.rows, "an import has listed other names");
  Require(after.working.cars.size() == plain.cars.size(), "an import has made another count of records");
  if (moment.result.ShowedError()) return;
  Require(moment.result.ShowedInformation(), "an import says nothing");
  Require(!after.isSaved, "IsSaved after an import");
  Require(moment.session.main.cmbAutos.Row() == 0, "an import doesn't choose the first row");
  Require(AsDisplayed(after.working.cars) == AsDisplayed(plain.cars), "an import has made other records");
}

void CheckExport(const Moment& moment) {
  const SessionState& before = moment.before;
  Files expected = before.disk;
  expected[moment.folder.NameOf(moment.step.File())] =
      testing::ExportPlainly({before.exported, before.working.cars, before.author, before.date});
  Require(moment.after.disk == expected, "an export has written something else");
  Require(moment.result.ShowedInformation(), "an export says nothing");
  Require(!moment.session.exporter.IsVisible(), "the export window stays after an export");
}

}  // namespace wheelwright::soak
