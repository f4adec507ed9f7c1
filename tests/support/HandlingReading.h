// The reader of the handling file alone, without the open command around it.
#pragma once

#include "gamefiles/HandlingReader.h"
#include "support/TestSession.h"
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
  using Rows = std::vector<ReportList::Row>;

  // Reads a file of this text into an empty list.
  void Read(const std::string& text) {
    test.files.contents[TestSession::kHandlingPath] = text;
    test.vars.CurrentFile = TestSession::kHandlingPath;
    test.main.cmbAutos.Clear();
    LoadHandlingFile(test.session);
  }

  // The number of the failure that ends the reading, 0 if none does.
  int FailureOf(const std::string& text) {
    return NumberThrownBy([&] { Read(text); });
  }

  Names Listed() const { return test.main.cmbAutos.Rows(); }
  Names Recorded() const { return NamesOf(test.vars.Cars); }
  Kinds Marked() const { return KindsOf(test.vars.Cars); }

  TestSession test;
};

}  // namespace wheelwright::testing
