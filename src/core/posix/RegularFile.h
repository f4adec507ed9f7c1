// What is opened on every system but Windows: regular files alone, and never with a wait.
#pragma once

#include "core/Failure.h"

#include <string>
#include <sys/stat.h>
#include <utility>

namespace wheelwright {

enum class Purpose { Reading, Writing };

// The failure for a number of errno.
Failure FailureOf(int error, Purpose purpose);

// An open file, which closes itself.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }
  // What a file on a network tells only now is a failure too.
  void Close();

 private:
  int number_ = -1;
};

struct stat FactsOf(const Descriptor& file, Purpose purpose);

// Opens a file, with open()'s flags, and doesn't wait for anybody's leave. Anything but a regular
// file is failure 75.
Descriptor OpenRegularFile(const std::string& path, Purpose purpose, int flags, mode_t mode = 0);

}  // namespace wheelwright
