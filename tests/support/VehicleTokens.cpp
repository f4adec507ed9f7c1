#include "support/VehicleTokens.h"

#include <iomanip>
#include <ostream>
#include <sstream>

namespace wheelwright::testing {
namespace {

constexpr TokenCheck kAnything = TokenCheck::None;
constexpr TokenCheck kNumber = TokenCheck::MustBeNumeric;
constexpr TokenCheck kWord = TokenCheck::MustNotBeNumeric;

}  // namespace

// clang-format off
const std::array<TokenRule, 33> kTokenRules = {{
    {"0.0", kWord, "lblAutoname"},
    {"0.0", kNumber, "lblGewicht"},
    {"0.0", kNumber, "lblBreite"},
    {"0.0", kNumber, "lblHoehe"},
    {"0.0", kNumber, "lblLaenge"},
    {"0.0", kNumber, "lblMassenmittelpX"},
    {"0.0", kNumber, "lblMassenmittelpY"},
    {"0.0", kNumber, "lblMassenmittelpZ"},
    {"0", kNumber, "lblSubMerged"},
    {"0.0", kNumber, "lblTractionMulti"},
    {"0.0", kNumber, "lblTractionLoss"},
    {"0.0", kNumber, "lblTractionBias"},
    {"0", kNumber, "lblGaenge"},
    {"0.0", kNumber, "lblGeschwindigkeit"},
    {"0.0", kNumber, "lblBeschleunigung"},
    {"F", kAnything, nullptr},
    {"P", kWord, "lblMotorTyp"},
    {"0.0", kNumber, "lblBremsstaerke"},
    {"0.0", kNumber, "lblBrakeBias"},
    {"0", kNumber, "lblABS"},
    {"0.0", kNumber, "lblRadeinschlag"},
    {"0.0", kNumber, "lblKraftlevel"},
    {"0.0", kNumber, "lblDLevel"},
    {"0.0", kNumber, "lblPedSeat"},
    {"0.0", kNumber, "lblKoll"},
    {"0", kNumber, "lblPreis"},
    {"0.0", kNumber, "lblOLimit"},
    {"0.0", kNumber, "lblULimit"},
    {"0.0", kNumber, "lblBias"},
    {"0.0", kNumber, nullptr},
    {"0000000", kAnything, nullptr},
    {"0", kNumber, "lblFrontLichter"},
    {"0", kNumber, "lblRearLichter"},
}};
// clang-format on

std::string CaptionOf(const TokenRule& rule, const FrmMain& main) {
  if (rule.label == nullptr) return "";
  return dynamic_cast<const Captioned&>(*main.Find(rule.label)).Caption();
}

LineProblem WrongCount(const std::string& vehicle, int tokens) {
  return {.vehicle = vehicle, .tokens = tokens};
}

LineProblem BadToken(const std::string& vehicle, int index) {
  const auto place = static_cast<std::size_t>(index);
  return {.vehicle = vehicle, .field = kHandlingTokens[place].value, .failed = kTokenRules[place].check};
}

std::vector<ReportList::Row> RowsOf(const LineProblems& problems, const FrmMain& captions) {
  std::vector<ReportList::Row> rows;
  for (const LineProblem& problem : problems) {
    std::string text = "E102: " + std::to_string(problem.tokens) + " E103";
    std::string caption;
    for (std::size_t i = 0; i < kHandlingTokens.size(); ++i) {
      if (kHandlingTokens[i].value != problem.field) continue;
      const TokenRule& rule = kTokenRules[i];
      text = problem.failed == kWord ? "E104" : "E105";
      caption = CaptionOf(rule, captions);
    }
    rows.push_back({problem.vehicle, caption, text});
  }
  return rows;
}

std::string VehicleLineOf(const std::string& name, const std::string& mass) {
  std::ostringstream line;
  line << std::left << std::setw(14) << name << ' ' << std::right << std::setw(7) << mass
       << " 1.9 4.6 1.5 0.0 0.1 -0.2 80 0.70 0.75 0.51 5 160.0 20.0 R P 6.1 0.60 0 35.0 1.6 0.08 "
          "0.20 0.50   9000 0.35 -0.16 0.5 0.3 0000003 0 1";
  return line.str();
}

Tokens GoodTokens(const std::string& name) {
  std::istringstream line(VehicleLineOf(name));
  Tokens tokens;
  for (std::string token; line >> token;) tokens.push_back(token);
  return tokens;
}

Tokens TokensWith(const std::string& name, std::size_t index, const std::string& token) {
  Tokens tokens = GoodTokens(name);
  tokens.at(index) = token;
  return tokens;
}

std::string Joined(const Tokens& tokens, std::string_view separator) {
  std::string line;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (i > 0) line += separator;
    line += tokens[i];
  }
  return line;
}

Car CarOf(const Tokens& t) {
  return Car{kOrdinaryVehicle, t.at(0),  t.at(1),  t.at(2),  t.at(3),  t.at(4),  t.at(5),  t.at(6),  t.at(7),
             t.at(8),          t.at(9),  t.at(10), t.at(11), t.at(12), t.at(13), t.at(14), t.at(15), t.at(16),
             t.at(17),         t.at(18), t.at(19), t.at(20), t.at(21), t.at(22), t.at(23), t.at(24), t.at(25),
             t.at(26),         t.at(27), t.at(28), t.at(29), t.at(30), t.at(31), t.at(32)};
}

Tokens TokensOf(const Car& car) {
  const auto& [kind, t0, t1, t2, t3, t4, t5, t6, t7, t8, t9, t10, t11, t12, t13, t14, t15, t16, t17, t18, t19,
               t20, t21, t22, t23, t24, t25, t26, t27, t28, t29, t30, t31, t32] = car;
  return {t0,  t1,  t2,  t3,  t4,  t5,  t6,  t7,  t8,  t9,  t10, t11, t12, t13, t14, t15, t16,
          t17, t18, t19, t20, t21, t22, t23, t24, t25, t26, t27, t28, t29, t30, t31, t32};
}

std::vector<Tokens> TokensOf(const Table<Car>& cars) {
  std::vector<Tokens> tokens;
  for (int i = 0; i < cars.Count(); ++i) tokens.push_back(TokensOf(cars.At(i)));
  return tokens;
}

std::vector<std::string> NamesOf(const Table<Car>& cars) {
  std::vector<std::string> names;
  for (int i = 0; i < cars.Count(); ++i) names.push_back(cars.At(i).CarName);
  return names;
}

std::vector<int> KindsOf(const Table<Car>& cars) {
  std::vector<int> kinds;
  for (int i = 0; i < cars.Count(); ++i) kinds.push_back(cars.At(i).LineKind);
  return kinds;
}

Table<Car> TableOf(const std::vector<Car>& cars) {
  Table<Car> table;
  for (const Car& car : cars) {
    table.ExtendTo(table.Count());
    table.At(table.Count() - 1) = car;
  }
  return table;
}

}  // namespace wheelwright::testing

namespace wheelwright {

void PrintTo(const LineProblem& problem, std::ostream* out) {
  *out << '"' << problem.vehicle << "\" ";
  for (const HandlingToken& token : kHandlingTokens) {
    if (token.value == problem.field) *out << token.name;
  }
  *out << " check " << static_cast<int>(problem.failed) << ", tokens " << problem.tokens;
}

}  // namespace wheelwright
