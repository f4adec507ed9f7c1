#include "core/Records.h"
#include "core/Table.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

using Positions = std::vector<int>;

Table<Car> TableOf(const std::vector<std::string>& names) {
  Table<Car> table;
  for (const std::string& name : names) {
    const int next = table.Count();
    table.ExtendTo(next);
    table.At(next).CarName = name;
  }
  return table;
}

Positions Find(const Table<Car>& table, const std::string& name) {
  Positions found;
  for (int i = table.First(&Car::CarName, name); i != table.kNone; i = table.Next(i)) {
    found.push_back(i);
  }
  return found;
}

Positions Walked(const Table<Car>& table, const std::string& name) {
  Positions positions;
  for (int i = 0; i < table.Count(); ++i) {
    if (table.At(i).CarName == name) positions.push_back(i);
  }
  return positions;
}

TEST(KeyIndexTest, AllRecordsWithAKeyAreFoundInTheirOrder) {
  const Table<Car> table = TableOf({"BUS", "VAN", "BUS", "", "BUS"});
  EXPECT_EQ(Find(table, "BUS"), (Positions{0, 2, 4}));
  EXPECT_EQ(Find(table, ""), (Positions{3}));
  EXPECT_EQ(Find(table, "TAXI"), Positions{});
}

TEST(KeyIndexTest, ARenamedRecordIsFoundByItsNewNameOnly) {
  Table<Car> table = TableOf({"BUS", "VAN", "BUS"});
  EXPECT_EQ(Find(table, "VAN"), (Positions{1}));
  table.At(0).CarName = "VAN";
  EXPECT_EQ(Find(table, "VAN"), (Positions{0, 1}));
  EXPECT_EQ(Find(table, "BUS"), (Positions{2}));
}

TEST(KeyIndexTest, AChangeThroughAReferenceFromTheLastSearchOnIsSeen) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  Find(table, "BUS");
  Car& bus = table.At(0);
  Car& van = table.At(1);
  van.CarName = "BUS";
  bus.CarName = "COACH";
  EXPECT_EQ(Find(table, "BUS"), (Positions{1}));
}

TEST(KeyIndexTest, ANewRecordIsFound) {
  Table<Car> table = TableOf({"BUS"});
  Find(table, "BUS");
  table.ExtendTo(2);
  table.At(2).CarName = "BUS";
  EXPECT_EQ(Find(table, "BUS"), (Positions{0, 2}));
  EXPECT_EQ(Find(table, ""), (Positions{1}));
}

TEST(KeyIndexTest, OtherRecordsAreFoundInPlaceOfTheOldOnes) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  Find(table, "BUS");
  table = TableOf({"VAN"});
  EXPECT_EQ(Find(table, "BUS"), Positions{});
  EXPECT_EQ(Find(table, "VAN"), (Positions{0}));
  table.Reset();
  EXPECT_EQ(Find(table, "VAN"), Positions{});
}

TEST(KeyIndexTest, AnotherKeyIsFoundByItself) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  table.At(1).Mass = "BUS";
  EXPECT_EQ(table.First(&Car::CarName, "BUS"), 0);
  EXPECT_EQ(table.First(&Car::Mass, "BUS"), 1);
}

// One change of a table, or a copy of it that takes its place.
void ChangeAnyhow(Table<Car>& table) {
  const auto name = *rc::gen::element<std::string>("", "BUS", "VAN", "TAXI");
  const int at = *rc::gen::inRange(0, table.Count());
  switch (*rc::gen::inRange(0, 5)) {
    case 0:
      table.ExtendTo(table.Count());
      break;
    case 1:
      table = Table<Car>(table);
      break;
    case 2:
      table.At(at).Mass = name;
      break;
    default:
      table.At(at).CarName = name;
      break;
  }
}

RC_GTEST_PROP(KeyIndexLaw, TheIndexFindsWhatAWalkFinds, ()) {
  Table<Car> table = TableOf({"BUS", "VAN", "BUS"});
  for (int step = 0; step < 40; ++step) {
    ChangeAnyhow(table);
    const auto name = *rc::gen::element<std::string>("", "BUS", "VAN", "TAXI");
    if (*rc::gen::arbitrary<bool>()) RC_ASSERT(Find(table, name) == Walked(table, name));
  }
}

}  // namespace
}  // namespace wheelwright::testing
