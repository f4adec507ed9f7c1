// What holds for the way of vehicles from one session to another, whatever they are.
#include "formats/HandlingLine.h"
#include "support/Exchange.h"
#include "support/Generators.h"
#include "support/ImportReference.h"
#include "support/TableRecords.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

constexpr const char* kHome = "~";  // no generated name begins with it, nor it with one

std::string Repeated(rc::Gen<char> byte, int shortest, int longest) {
  const int length = *rc::gen::inRange(shortest, longest + 1);
  return *rc::gen::container<std::string>(static_cast<std::size_t>(length), std::move(byte));
}

// A byte that stands inside a token.
rc::Gen<char> TokenByte() {
  return rc::gen::suchThat(rc::gen::arbitrary<char>(), [](char byte) {
    return byte != ' ' && byte != '\t' && byte != '\r' && byte != '\0';
  });
}

// Flags of seven characters and more are those that a display doesn't fill up.
Car AnyCar(const std::string& name) {
  Car car;
  car.LineKind = *rc::gen::inRange<std::int16_t>(0, 4);
  for (const HandlingToken& token : kHandlingTokens) car.*token.value = Repeated(TokenByte(), 1, 9);
  car.ModelFlags = Repeated(TokenByte(), 7, 9);
  car.CarName = name;
  return car;
}

void AddCar(TestSession& test, const Car& car) {
  Table<Car>& cars = test.vars.Cars;
  const int next = cars.Count();
  cars.ExtendTo(next);
  cars.At(next) = car;
}

std::vector<Car> AllBut(const TestSession& test, std::size_t first) {
  const std::vector<Car>& cars = RecordsOf(test.vars.Cars);
  return {cars.begin() + static_cast<std::ptrdiff_t>(first), cars.end()};
}

// The records that the rows stand for, as often as rows begin their name.
std::vector<Car> Expected(const std::vector<Car>& cars, const std::vector<std::string>& rows,
                          const std::vector<std::string>& importedRows) {
  std::vector<Car> expected;
  for (const std::string& row : rows) {
    for (Car car : cars) {
      if (car.CarName != row) continue;
      car.LineKind = kOrdinaryVehicle;
      for (const std::string& begin : importedRows) {
        if (row.starts_with(begin)) expected.push_back(car);
      }
    }
  }
  return expected;
}

RC_GTEST_PROP(ExchangeLaws, ExportedVehiclesComeBackWithAllTheirTexts, ()) {
  TestSession from;
  const int count = *rc::gen::inRange(1, 6);
  for (int i = 0; i < count; ++i) {
    const std::string name = Repeated(rc::gen::elementOf(std::string("ABab\xC4%$")), 1, 14);
    AddCar(from, AnyCar(name));
    from.main.cmbAutos.AddRow(name);
  }
  from.main.cmdExportCar.ClickByHand();
  std::vector<int> marks;
  for (int row = 0; row < count; ++row) {
    if (row == 0 || *rc::gen::arbitrary<bool>()) marks.push_back(row);
  }
  from.exporter.lst1.MarkByHand(marks);
  from.exporter.cmdAdd.ClickByHand();
  const std::vector<std::string> chosen = from.exporter.lst2.Rows();
  const std::string file = Told(ExportChosen(from));

  TestSession to;
  to.OpenHandling(CrLf({VehicleLineOf(kHome)}));
  Import(to, file);
  RC_ASSERT(to.LastShown() == "information: E115");
  std::vector<std::string> rows = chosen;
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  RC_ASSERT(AllBut(to, 1) == Expected(RecordsOf(from.vars.Cars), chosen, rows));
}

std::string AnyLine() {
  const rc::Gen<char> byte = rc::gen::elementOf(std::string("ABAB    \t;1\n"));
  if (*rc::gen::arbitrary<bool>()) return Repeated(byte, 0, 24);
  return VehicleLineOf(Repeated(rc::gen::elementOf(std::string("AB ")), 0, 16));
}

RC_GTEST_PROP(ExchangeLaws, AnImportGivesWhatAPlainWalkOverRowsAndLinesGives, ()) {
  TestSession quick;
  TestSession plain;
  std::vector<std::string> rows;
  const int rowCount = *rc::gen::inRange(1, 5);
  for (int i = 0; i < rowCount; ++i) {
    rows.push_back(Repeated(rc::gen::elementOf(std::string("AB \t")), 0, 4));
  }
  std::string text;
  const int lines = *rc::gen::inRange(0, 8);
  for (int i = 0; i < lines; ++i) text += AnyLine() + *rc::gen::element("\r\n", "\r");
  for (TestSession* test : {&quick, &plain}) {
    test->vars.Cars.Reset();
    // Replaced rows lie in the list as renames leave them: in any order.
    for (int i = 0; i < rowCount; ++i) {
      test->main.cmbAutos.AddRow("");
      test->main.cmbAutos.ReplaceRow(i, rows[static_cast<std::size_t>(i)]);
    }
  }
  Import(quick, Told(text));
  PlainImport(plain.session, text);
  RC_ASSERT(quick.LastShown() == "information: E115");
  RC_ASSERT(quick.main.cmbAutos.Rows() == plain.main.cmbAutos.Rows());
  RC_ASSERT(RecordsOf(quick.vars.Cars) == RecordsOf(plain.vars.Cars));
  RC_ASSERT(quick.error.lstErrors.Rows() == plain.error.lstErrors.Rows());
}

}  // namespace
}  // namespace wheelwright::testing
