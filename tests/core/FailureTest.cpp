#include "core/Failure.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <string>

namespace wheelwright::testing {
namespace {

struct Known {
  FailureNumber failure;
  int number;
  const char* text;
};

constexpr std::array<Known, 14> kAllKnown = {{
    {FailureNumber::InvalidCall, 5, "Invalid procedure call or argument"},
    {FailureNumber::Overflow, 6, "Overflow"},
    {FailureNumber::OutOfMemory, 7, "Out of memory"},
    {FailureNumber::SubscriptOutOfRange, 9, "Subscript out of range"},
    {FailureNumber::TypeMismatch, 13, "Type mismatch"},
    {FailureNumber::FileNotFound, 53, "File not found"},
    {FailureNumber::DeviceIoError, 57, "Device I/O error"},
    {FailureNumber::DiskFull, 61, "Disk full"},
    {FailureNumber::PermissionDenied, 70, "Permission denied"},
    {FailureNumber::PathFileAccess, 75, "Path/File access error"},
    {FailureNumber::PathNotFound, 76, "Path not found"},
    {FailureNumber::InvalidPropertyValue, 380, "Invalid property value"},
    {FailureNumber::InvalidPicture, 481, "Invalid picture"},
    {FailureNumber::CancelSelected, 32755, "Cancel was selected"},
}};

// What FailureInFlight makes of an exception, as its message.
std::string InFlight(const std::function<void()>& thrower) {
  try {
    thrower();
  } catch (...) {
    return FailureInFlight().Message();
  }
  return "nothing was thrown";
}

TEST(FailureTest, EachNumberHasItsText) {
  for (const Known& known : kAllKnown) {
    EXPECT_EQ(static_cast<int>(known.failure), known.number);
    EXPECT_EQ(Failure(known.failure).Number(), known.failure);
    EXPECT_EQ(Failure(known.failure).Description(), known.text);
    EXPECT_STREQ(Failure(known.failure).what(), known.text);
  }
}

TEST(FailureTest, TheMessageNamesNumberAndText) {
  EXPECT_EQ(Failure(FailureNumber::PathFileAccess).Message(), "Error: 75 - Path/File access error");
  EXPECT_EQ(Failure(FailureNumber::CancelSelected).Message(), "Error: 32755 - Cancel was selected");
}

TEST(FailureTest, OnlyTheCancelledDialogIsACancel) {
  for (const Known& known : kAllKnown)
    EXPECT_EQ(Failure(known.failure).IsCancel(), known.number == 32755) << known.number;
}

TEST(FailureTest, AFailureInFlightIsItself) {
  EXPECT_EQ(InFlight([] { throw Failure(FailureNumber::DiskFull); }), "Error: 61 - Disk full");
}

TEST(FailureTest, ALackOfMemoryIsFailure7WhoeverReportsIt) {
  EXPECT_EQ(InFlight([] { throw std::bad_alloc(); }), "Error: 7 - Out of memory");
  EXPECT_EQ(InFlight([] { throw std::length_error("too long"); }), "Error: 7 - Out of memory");
}

TEST(FailureTest, AnyOtherExceptionIsThrownOn) {
  EXPECT_THROW(InFlight([] { throw std::runtime_error("foreign"); }), std::runtime_error);
  EXPECT_THROW(InFlight([] { throw std::out_of_range("foreign"); }), std::out_of_range);
  EXPECT_THROW(InFlight([] { throw 5; }), int);
}

TEST(FailureTest, ANumberWithoutATextIsSaidToBeTheProgramsOwn) {
  EXPECT_STREQ(DescriptionOf(static_cast<FailureNumber>(1000)),
               "Application-defined or object-defined error");
}

}  // namespace
}  // namespace wheelwright::testing
