#include "core/Records.h"
#include "core/Table.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

constexpr int kOverflow = 6;
constexpr int kSubscript = 9;

Table<Car> TableOf(const std::vector<std::string>& names) {
  Table<Car> table;
  table.ExtendTo(static_cast<int>(names.size()) - 1);
  for (std::size_t i = 0; i < names.size(); ++i) table.At(static_cast<int>(i)).CarName = names[i];
  return table;
}

TEST(TableTest, ATableIsUnallocatedAtFirst) {
  const Table<Car> table;
  EXPECT_FALSE(table.IsAllocated());
  EXPECT_EQ(table.Count(), 0);
}

TEST(TableTest, NothingOfAnUnallocatedTableMayBeUsed) {
  Table<Car> table;
  const Table<Car>& readOnly = table;
  EXPECT_EQ(NumberThrownBy([&] { table.UpperBound(); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { table.At(0); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { readOnly.At(0); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { table.Walk(); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { readOnly.Walk(); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { table.First(&Car::CarName, "BUS"); }), kSubscript);
}

TEST(TableTest, AResetLeavesOneEmptyRecord) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  table.At(0).LineKind = kPercentLine;
  table.Reset();
  EXPECT_TRUE(table.IsAllocated());
  EXPECT_EQ(table.UpperBound(), 0);
  EXPECT_EQ(table.At(0), Car{});
}

TEST(TableTest, ExtendingKeepsTheContentsAndAddsEmptyRecords) {
  Table<Car> table = TableOf({"BUS"});
  table.ExtendTo(2);
  EXPECT_EQ(table.UpperBound(), 2);
  EXPECT_EQ(table.At(0).CarName, "BUS");
  EXPECT_EQ(table.At(1), Car{});
  EXPECT_EQ(table.At(2), Car{});
}

TEST(TableTest, ExtendingNeverShortens) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  table.ExtendTo(0);
  EXPECT_EQ(table.Count(), 2);
  EXPECT_EQ(table.At(1).CarName, "VAN");
}

TEST(TableTest, ExtendingAllocates) {
  Table<Car> table;
  table.ExtendTo(0);
  EXPECT_TRUE(table.IsAllocated());
  EXPECT_EQ(table.At(0), Car{});
}

TEST(TableTest, AnIndexThatIsNotThereIsASubscriptFailure) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  const Table<Car>& readOnly = table;
  EXPECT_EQ(readOnly.At(1).CarName, "VAN");
  EXPECT_EQ(NumberThrownBy([&] { table.At(2); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { table.At(-1); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { readOnly.At(2); }), kSubscript);
  EXPECT_EQ(NumberThrownBy([&] { readOnly.At(-1); }), kSubscript);
}

TEST(TableTest, AnUpperBoundPast32767Overflows) {
  Table<ColorEntry> table;
  table.ExtendTo(32767);
  EXPECT_EQ(table.UpperBound(), 32767);
  table.ExtendTo(32768);
  EXPECT_EQ(NumberThrownBy([&] { table.UpperBound(); }), kOverflow);
}

TEST(TableTest, AWalkGoesThroughAllRecordsInOrder) {
  Table<Car> table = TableOf({"BUS", "VAN", "BUS"});
  std::string names;
  for (const Car& car : table.Walk()) names += car.CarName + ";";
  EXPECT_EQ(names, "BUS;VAN;BUS;");
}

TEST(TableTest, AStepBehindGivesTheRecordAndGoesOn) {
  Table<Car> table = TableOf({"BUS", "VAN"});
  auto walker = table.Walk().begin();
  EXPECT_EQ((*walker++).CarName, "BUS");
  EXPECT_EQ(walker->CarName, "VAN");
}

TEST(TableTest, ACopySharesNothingWithItsModel) {
  Table<CarColorEntry> model;
  model.Reset();
  model.At(0) = {"bus", {{1, 3}, {2, 4}}};
  Table<CarColorEntry> copy = model;
  copy.At(0).Pairs[0].Color1 = 77;
  copy.At(0).Pairs.push_back({0, 78});
  copy.At(0).ModelName = "busx";
  copy.ExtendTo(1);
  EXPECT_EQ(model.Count(), 1);
  EXPECT_EQ(model.At(0), (CarColorEntry{"bus", {{1, 3}, {2, 4}}}));
  model.At(0).Pairs[1].Color1 = 79;
  EXPECT_EQ(copy.At(0), (CarColorEntry{"busx", {{77, 3}, {2, 4}, {0, 78}}}));
}

TEST(TableTest, ACopyReplacesWhatTheTableHeld) {
  Table<Car> table = TableOf({"BUS", "VAN", "TAXI"});
  table = TableOf({"COACH"});
  EXPECT_EQ(table.UpperBound(), 0);
  EXPECT_EQ(table.At(0).CarName, "COACH");
}

TEST(TableTest, ACopyOfAnUnallocatedTableIsUnallocated) {
  Table<Car> table = TableOf({"BUS"});
  table = Table<Car>();
  EXPECT_FALSE(table.IsAllocated());
}

TEST(TableTest, TheFirstRecordWithAKeyIsFoundByteForByte) {
  const Table<Car> table = TableOf({"Bus", "BUS", "VAN", "BUS"});
  EXPECT_EQ(table.First(&Car::CarName, "BUS"), 1);
  EXPECT_EQ(table.First(&Car::CarName, "Bus"), 0);
  EXPECT_EQ(table.First(&Car::CarName, "bus"), -1);
  EXPECT_EQ(table.First(&Car::CarName, "BU"), -1);
}

TEST(TableTest, AVehicleWithoutSpecialLineHasTheKindZero) {
  EXPECT_EQ(Car{}.LineKind, 0);
  EXPECT_EQ(kPercentLine, 1);
  EXPECT_EQ(kExclamationLine, 2);
  EXPECT_EQ(kDollarLine, 3);
}

}  // namespace
}  // namespace wheelwright::testing
