#include "core/Numbers.h"
#include "support/Thrown.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace wheelwright::testing {
namespace {

constexpr int kOverflow = 6;
constexpr int kTypeMismatch = 13;

int FailureOfConverting(const std::string& text) {
  return NumberThrownBy([&] { ToInteger16(text); });
}

constexpr std::array kNumeric = {"0",     "12",    "007",   "+12",    "-12",    "0.5",  "-0.5",
                                 ".5",    "5.",    "-.5",   "+5.",    ",5",     "5,",   "1,5",
                                 "+,5",   "2e-3",  "2E+3",  "1d4",    "1D4",    "1d-4", "1D+4",
                                 "1.5e0", ".5e10", "5.D-3", "1,5e10", "1e0007", "-0",   "0e0"};

constexpr std::array kNotNumeric = {
    "",      "+",     "-",     ".",     ",",    "-.",   "+,",    "e5",    ".e5",   "-e5",
    "1e",    "1e+",   "1e-",   "1d",    "1ee5", "1ed5", "1e5.0", "1e5,0", "1e5e5", "1e+-5",
    "1.5.0", "1,50,", "1,5.0", "1.5,0", "..5",  "--1",  "+-1",   "1-",    "1+",    "1 ",
    " 1",    "1 000", "- 1",   "1\t",   "\t1",  "1\r",  "0x1F",  "&H1F",  "12a",   "a12",
    "1f",    "$1",    "(1)",   "1%",    "inf",  "nan",  "1'000", "\xB2",  "\xA0",  "BUS"};

TEST(NumbersTest, EveryNumericFormIsNumeric) {
  for (const char* text : kNumeric) EXPECT_TRUE(IsNumeric(text)) << text;
  EXPECT_TRUE(IsNumeric("1e99999999999999999999"));
  EXPECT_TRUE(IsNumeric(std::string(5000, '7')));
}

TEST(NumbersTest, NothingElseIsNumeric) {
  for (const char* text : kNotNumeric) EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
  EXPECT_FALSE(IsNumeric(std::string("1\0", 2)));
}

using Conversion = std::pair<const char*, int>;

TEST(NumbersTest, HalvesGoToTheEvenNumberOnBothSidesOfZero) {
  const std::array<Conversion, 14> conversions = {{{"0.5", 0},
                                                   {"1.5", 2},
                                                   {"2.5", 2},
                                                   {"3,5", 4},
                                                   {"-0.5", 0},
                                                   {"-1.5", -2},
                                                   {"-2.5", -2},
                                                   {"-3,5", -4},
                                                   {"2.5000000000", 2},
                                                   {"5e-1", 0},
                                                   {"15E-1", 2},
                                                   {"25d-1", 2},
                                                   {".035D2", 4},
                                                   {"32766.5", 32766}}};
  for (const auto& [text, whole] : conversions) EXPECT_EQ(ToInteger16(text), whole) << text;
}

TEST(NumbersTest, AllElseGoesToTheNearestNumberHoweverNearTheHalfIs) {
  const std::array<Conversion, 13> conversions = {{{"0.49999999999999999999999999", 0},
                                                   {"0.50000000000000000000000001", 1},
                                                   {"2.49999999999999999999999999", 2},
                                                   {"2.50000000000000000000000001", 3},
                                                   {"-2.50000000000000000000000001", -3},
                                                   {"-2.49999999999999999999999999", -2},
                                                   {"0.05", 0},
                                                   {"0.9", 1},
                                                   {"-0.9", -1},
                                                   {"0.1", 0},
                                                   {"3.6", 4},
                                                   {"3.4", 3},
                                                   {"9.9", 10}}};
  for (const auto& [text, whole] : conversions) EXPECT_EQ(ToInteger16(text), whole) << text;
}

TEST(NumbersTest, ANumberMayTakeAnyNumericForm) {
  const std::array<Conversion, 15> conversions = {{{"0", 0},
                                                   {"1e1", 10},
                                                   {"-0", 0},
                                                   {"+7", 7},
                                                   {"007", 7},
                                                   {"5.", 5},
                                                   {",9", 1},
                                                   {"1e4", 10000},
                                                   {"1d+4", 10000},
                                                   {"-3.2767E4", -32767},
                                                   {"1200e-2", 12},
                                                   {"00000000000000000000000000000012", 12},
                                                   {"0.0000000000000000000000000012e28", 12},
                                                   {"1200000000000000000000000000000e-29", 12},
                                                   {"12.000000000000000000000000000000", 12}}};
  for (const auto& [text, whole] : conversions) EXPECT_EQ(ToInteger16(text), whole) << text;
}

TEST(NumbersTest, TheBoundsAreThoseAfterRounding) {
  EXPECT_EQ(ToInteger16("32767"), 32767);
  EXPECT_EQ(ToInteger16("32767.4"), 32767);
  EXPECT_EQ(ToInteger16("32767.4999999999999999999"), 32767);
  EXPECT_EQ(ToInteger16("-32768"), -32768);
  EXPECT_EQ(ToInteger16("-32768.5"), -32768);
  for (const char* text : {"32767.5", "32768", "-32768.5000000000000000001", "-32768.6", "-32769"})
    EXPECT_EQ(FailureOfConverting(text), kOverflow) << text;
}

TEST(NumbersTest, ANumberThatDoesNotFitOverflowsHoweverLargeItIs) {
  for (const char* text :
       {"65536", "99999", "-99999", "100000", "1e5", "-1d6", "4294967296", "18446744073709551617", "1e20",
        "1e99999999999999999999999", "-1e99999999999999999999999"})
    EXPECT_EQ(FailureOfConverting(text), kOverflow) << text;
  EXPECT_EQ(FailureOfConverting("1e18446744073709551617"), kOverflow) << "2 to the 64th, and 1";
  EXPECT_EQ(FailureOfConverting(std::string(5000, '9')), kOverflow);
}

TEST(NumbersTest, AHugeExponentDoesNotMatterToZeroNorANegativeOneToAnyNumber) {
  EXPECT_EQ(ToInteger16("0e99999999999999999999999"), 0);
  EXPECT_EQ(ToInteger16("0.000e99999999999999999999999"), 0);
  EXPECT_EQ(ToInteger16("9e-99999999999999999999999"), 0);
  EXPECT_EQ(ToInteger16("9e-18446744073709551617"), 0) << "2 to the 64th, and 1";
  EXPECT_EQ(ToInteger16("-99999e-99999999999999999999999"), 0);
}

TEST(NumbersTest, BlanksAroundANumberAreCut) {
  EXPECT_EQ(ToInteger16("  12"), 12);
  EXPECT_EQ(ToInteger16("12  "), 12);
  EXPECT_EQ(ToInteger16("   -1,5   "), -2);
}

TEST(NumbersTest, WhatIsNoNumberIsATypeMismatch) {
  for (const char* text :
       {"", "   ", "-", ".", "abc", "1e", "1 2", "- 1", "\t12", "12\r", "12\t", "0x10", "1.2.3", "99999x"}) {
    EXPECT_EQ(FailureOfConverting(text), kTypeMismatch) << '"' << text << '"';
  }
}

TEST(NumbersTest, AValueThatFits16BitsIsChecked) {
  EXPECT_EQ(Checked16(32767), 32767);
  EXPECT_EQ(Checked16(-32768), -32768);
  EXPECT_EQ(Checked16(std::size_t{32767}), 32767);
  EXPECT_EQ(NumberThrownBy([] { Checked16(32768); }), kOverflow);
  EXPECT_EQ(NumberThrownBy([] { Checked16(-32769); }), kOverflow);
  EXPECT_EQ(NumberThrownBy([] { Checked16(std::size_t{32768}); }), kOverflow);
  EXPECT_EQ(NumberThrownBy([] { Checked16(65536L * 65536L); }), kOverflow);
}

TEST(NumbersTest, ACounterOverflowsOnTheStepPast32767) {
  Counter16 counter;
  EXPECT_EQ(counter.Value(), 0);
  for (int step = 0; step < 32767; ++step) counter.Step();
  EXPECT_EQ(counter.Value(), 32767);
  EXPECT_EQ(NumberThrownBy([&] { counter.Step(); }), kOverflow);
  EXPECT_EQ(counter.Value(), 32767);
}

}  // namespace
}  // namespace wheelwright::testing
