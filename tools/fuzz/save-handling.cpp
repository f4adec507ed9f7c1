// Saves any table of vehicles over any template. The input: the template, a line for each entry of
// the list, a line for each vehicle with its fields between "|", the author, the date.
#include "fuzz/FuzzInput.h"
#include "fuzz/Law.h"
#include "fuzz/SaveLaws.h"
#include "fuzz/VehicleRows.h"
#include "gamefiles/SaveFile.h"
#include "support/HandlingReference.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace wheelwright::fuzz {
namespace {

using testing::TestSession;

constexpr const char* kPath = TestSession::kHandlingPath;

void Prepare(TestSession& test, FuzzInput& input) {
  test.files.contents[kPath] = input.Take();
  test.vars.CurrentFile = kPath;
  test.vars.CurrentFileType = kHandlingFile;
  test.main.cmbAutos.AddRows(PartsOf(input.Take(), '\n'));
  test.vars.Cars = testing::TableOf(CarsIn(input.Take()));
  test.main.txtAuthor.SetText(input.TakeTyped());
  test.main.txtDate.SetText(input.TakeTyped());
}

std::string SavedPlainly(const TestSession& test) {
  return testing::WritePlainly(test.Disk(kPath), test.main.cmbAutos.Rows(),
                               testing::RecordsOf(test.vars.Cars), test.main.txtAuthor.Text(),
                               test.main.txtDate.Text()) +
         "\r\n";
}

std::string Save(TestSession& test) {
  const std::string expected = SavedPlainly(test);
  SaveFile(test.session);
  RequireSameText(test.Disk(kPath), expected, "a save writes what plain writing writes");
  Require(test.vars.IsSaved && test.LastShown() == "information: E116", "the save is told");
  Require(testing::RecordsOf(test.vars.Kopie_Cars) == testing::RecordsOf(test.vars.Cars),
          "a save makes the snapshot equal to the table");
  return expected;
}

// A name or mass that holds a comment's or special line's mark makes the vehicle's line one.
bool LooksForeign(const Car& car) {
  const std::string head = car.CarName + car.Mass;
  return head.find_first_of(";%!$") != std::string::npos;
}

void SaveAnyTable(FuzzInput input) {
  TestSession test;
  Prepare(test, input);
  const std::string onDisk = test.Disk(kPath);
  const std::vector<Car> cars = testing::RecordsOf(test.vars.Cars);
  const std::string once = Save(test);
  RequireHandlingComments(onDisk, once);
  Save(test);
  const std::string thrice = Save(test);
  if (std::any_of(cars.begin(), cars.end(), LooksForeign)) return;
  RequireSameText(Save(test), thrice, "a fourth save changes nothing");
}

}  // namespace
}  // namespace wheelwright::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wheelwright::fuzz::SaveAnyTable(wheelwright::fuzz::FuzzInput(data, size));
  return 0;
}
