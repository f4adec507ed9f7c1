#include "core/Failure.h"

#include <new>
#include <stdexcept>

namespace wheelwright {

const char* DescriptionOf(FailureNumber number) {
  switch (number) {
    case FailureNumber::InvalidCall:
      return "Invalid procedure call or argument";
    case FailureNumber::Overflow:
      return "Overflow";
    case FailureNumber::OutOfMemory:
      return "Out of memory";
    case FailureNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case FailureNumber::TypeMismatch:
      return "Type mismatch";
    case FailureNumber::FileNotFound:
      return "File not found";
    case FailureNumber::DeviceIoError:
      return "Device I/O error";
    case FailureNumber::DiskFull:
      return "Disk full";
    case FailureNumber::PermissionDenied:
      return "Permission denied";
    case FailureNumber::PathFileAccess:
      return "Path/File access error";
    case FailureNumber::PathNotFound:
      return "Path not found";
    case FailureNumber::InvalidPropertyValue:
      return "Invalid property value";
    case FailureNumber::InvalidPicture:
      return "Invalid picture";
    case FailureNumber::CancelSelected:
      return "Cancel was selected";
  }
  return "Application-defined or object-defined error";
}

std::string Failure::Message() const {
  return "Error: " + std::to_string(static_cast<int>(number_)) + " - " + Description();
}

Failure FailureInFlight() {
  try {
    throw;
  } catch (const Failure& failure) {
    return failure;
  } catch (const std::bad_alloc&) {
    return Failure(FailureNumber::OutOfMemory);
  } catch (const std::length_error&) {
    return Failure(FailureNumber::OutOfMemory);
  }
}

}  // namespace wheelwright
