// Vehicles of a handling file as their plain tokens, so that tests compare and print texts.
#pragma once

#include "core/Records.h"
#include "core/Table.h"
#include "formats/HandlingLine.h"
#include "screen/MainWindow.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright::testing {

using Tokens = std::vector<std::string>;

// What the format says about one token: its default, its check, and the label whose caption a
// problem with it shows, null for none.
struct TokenRule {
  const char* missing;
  TokenCheck check;
  const char* label;
};

extern const std::array<TokenRule, 33> kTokenRules;
std::string CaptionOf(const TokenRule& rule, const FrmMain& main);

// Problems as the checks of a line give them.
LineProblem WrongCount(const std::string& vehicle, int tokens);
LineProblem BadToken(const std::string& vehicle, int index);

// The rows that problems make with the captions of this window and a language whose entry n is
// "Ennn".
std::vector<ReportList::Row> RowsOf(const LineProblems& problems, const FrmMain& captions);

// A handling line of 33 good tokens with this name padded to 14 characters and this mass.
std::string VehicleLineOf(const std::string& name, const std::string& mass = "1500.0");

// The tokens of VehicleLineOf(name).
Tokens GoodTokens(const std::string& name);

// The good tokens with one of them replaced.
Tokens TokensWith(const std::string& name, std::size_t index, const std::string& token);

std::string Joined(const Tokens& tokens, std::string_view separator = " ");

// The record that holds these 33 tokens.
Car CarOf(const Tokens& tokens);

// The 33 texts of a record, in order.
Tokens TokensOf(const Car& car);

std::vector<Tokens> TokensOf(const Table<Car>& cars);
std::vector<std::string> NamesOf(const Table<Car>& cars);
std::vector<int> KindsOf(const Table<Car>& cars);

// A table of these records, unallocated if there are none.
Table<Car> TableOf(const std::vector<Car>& cars);

}  // namespace wheelwright::testing

namespace wheelwright {

void PrintTo(const LineProblem& problem, std::ostream* out);

}  // namespace wheelwright
