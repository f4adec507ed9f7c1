// The one exception of the program's own: a numbered failure of the system, a file or a table.
#pragma once

#include <exception>
#include <string>

namespace wheelwright {

enum class FailureNumber : int {
  InvalidCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceIoError = 57,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  InvalidPropertyValue = 380,
  InvalidPicture = 481,
  CancelSelected = 32755,
};

// The fixed English text that belongs to a number, without a full stop.
const char* DescriptionOf(FailureNumber number);

class Failure : public std::exception {
 public:
  explicit Failure(FailureNumber number) : number_(number) {}

  FailureNumber Number() const { return number_; }
  std::string Description() const { return DescriptionOf(number_); }

  // "Error: ", the number, " - ", the description: what a guarded handler shows.
  std::string Message() const;

  // A cancelled file dialog travels as a failure; handlers end silently on it.
  bool IsCancel() const { return number_ == FailureNumber::CancelSelected; }

  const char* what() const noexcept override { return DescriptionOf(number_); }

 private:
  FailureNumber number_;
};

// To be called inside a catch block: the exception in flight as a failure. A lack of memory,
// whoever reports it, becomes failure 7; anything else that isn't a Failure is thrown on.
Failure FailureInFlight();

}  // namespace wheelwright
