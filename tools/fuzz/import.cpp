// Imports any bytes into any list and table. The input: a line for each entry of the list, a line
// for each vehicle with its fields between "|", the file. Without vehicles the table is
// unallocated.
#include "fuzz/FuzzInput.h"
#include "fuzz/Law.h"
#include "fuzz/OpenLaws.h"
#include "fuzz/VehicleRows.h"
#include "support/Exchange.h"
#include "support/ImportReference.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace wheelwright::fuzz {
namespace {

using testing::TestSession;

struct Before {
  std::string rows;
  std::string vehicles;
};

// Rows that are replaced lie in the list as renames leave them, in any order.
void Prepare(TestSession& test, const Before& before) {
  PickList& list = test.main.cmbAutos;
  if (!before.rows.empty()) {
    const std::vector<std::string> rows = PartsOf(before.rows, '\n');
    list.AddRows(std::vector<std::string>(rows.size()));
    for (int row = 0; row < list.Count(); ++row) {
      list.ReplaceRow(row, rows[static_cast<std::size_t>(row)]);
    }
  }
  if (!before.vehicles.empty()) test.vars.Cars = testing::TableOf(CarsIn(before.vehicles));
}

void RequireSameState(const TestSession& quick, const TestSession& plain) {
  Require(quick.main.cmbAutos.Rows() == plain.main.cmbAutos.Rows(), "new names join the list");
  Require(quick.vars.Cars.IsAllocated() == plain.vars.Cars.IsAllocated() &&
              CarsOf(quick.vars.Cars) == CarsOf(plain.vars.Cars),
          "the records are those of a plain walk over rows and lines");
  Require(quick.error.lstErrors.Rows() == plain.error.lstErrors.Rows(),
          "the load problems are those of a plain walk");
  Require(!quick.vars.Kopie_Cars.IsAllocated(), "an import leaves the snapshot alone");
}

void ImportAnyBytes(FuzzInput input) {
  const Before before{input.Take(), input.Take()};
  const std::string file = input.Take();
  TestSession quick;
  TestSession plain;
  Prepare(quick, before);
  Prepare(plain, before);
  testing::Import(quick, file);
  const int failure = testing::NumberThrownBy([&] { testing::PlainImport(plain.session, file); });
  RequireSameText(quick.LastShown(), failure == 0 ? "information: E115" : BoxOf(failure),
                  "an import ends with its box");
  Require(quick.vars.IsSaved == (failure != 0), "an import is pending until it is saved");
  RequireSameState(quick, plain);
  RequireSameText(quick.Disk(testing::kImportPath), file, "an import leaves its file alone");
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::ImportAnyBytes(wheelwright::fuzz::FuzzInput(data, size));
  return 0;
}
