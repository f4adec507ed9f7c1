// The reader of the handling file.
#pragma once

#include "formats/HandlingFile.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {

class HandlingReading : public ::testing::Test {
 protected:
  using Names = std::vector<std::string>;
  using Kinds = std::vector<int>;

  void Read(const std::string& text) {
    file = {};
    ReadHandling(text, file);
  }

  // The number of the failure that ends the reading, 0 if none does.
  int FailureOf(const std::string& text) {
    return NumberThrownBy([&] { Read(text); });
  }

  Names Listed() const { return file.names; }
  Names Recorded() const { return NamesOf(file.cars); }
  Kinds Marked() const { return KindsOf(file.cars); }

  HandlingFile file;
};

}  // namespace wheelwright::testing
