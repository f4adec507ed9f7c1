#include "support/VehicleTokens.h"

#include "support/TestSession.h"

#include <sstream>

namespace wheelwright::testing {

// clang-format off
const std::array<TokenRule, 33> kTokenRules = {{
    {"0.0", Rule::Word, &FrmMain::lblAutoname},
    {"0.0", Rule::Number, &FrmMain::lblGewicht},
    {"0.0", Rule::Number, &FrmMain::lblBreite},
    {"0.0", Rule::Number, &FrmMain::lblHoehe},
    {"0.0", Rule::Number, &FrmMain::lblLaenge},
    {"0.0", Rule::Number, &FrmMain::lblMassenmittelpX},
    {"0.0", Rule::Number, &FrmMain::lblMassenmittelpY},
    {"0.0", Rule::Number, &FrmMain::lblMassenmittelpZ},
    {"0", Rule::Number, &FrmMain::lblSubMerged},
    {"0.0", Rule::Number, &FrmMain::lblTractionMulti},
    {"0.0", Rule::Number, &FrmMain::lblTractionLoss},
    {"0.0", Rule::Number, &FrmMain::lblTractionBias},
    {"0", Rule::Number, &FrmMain::lblGaenge},
    {"0.0", Rule::Number, &FrmMain::lblGeschwindigkeit},
    {"0.0", Rule::Number, &FrmMain::lblBeschleunigung},
    {"F", Rule::Anything, nullptr},
    {"P", Rule::Word, &FrmMain::lblMotorTyp},
    {"0.0", Rule::Number, &FrmMain::lblBremsstaerke},
    {"0.0", Rule::Number, &FrmMain::lblBrakeBias},
    {"0", Rule::Number, &FrmMain::lblABS},
    {"0.0", Rule::Number, &FrmMain::lblRadeinschlag},
    {"0.0", Rule::Number, &FrmMain::lblKraftlevel},
    {"0.0", Rule::Number, &FrmMain::lblDLevel},
    {"0.0", Rule::Number, &FrmMain::lblPedSeat},
    {"0.0", Rule::Number, &FrmMain::lblKoll},
    {"0", Rule::Number, &FrmMain::lblPreis},
    {"0.0", Rule::Number, &FrmMain::lblOLimit},
    {"0.0", Rule::Number, &FrmMain::lblULimit},
    {"0.0", Rule::Number, &FrmMain::lblBias},
    {"0.0", Rule::Number, nullptr},
    {"0000000", Rule::Anything, nullptr},
    {"0", Rule::Number, &FrmMain::lblFrontLichter},
    {"0", Rule::Number, &FrmMain::lblRearLichter},
}};
// clang-format on

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
  return Car{kOrdinaryVehicle, t.at(0),  t.at(1),  t.at(2),  t.at(3),  t.at(4),  t.at(5),
             t.at(6),          t.at(7),  t.at(8),  t.at(9),  t.at(10), t.at(11), t.at(12),
             t.at(13),         t.at(14), t.at(15), t.at(16), t.at(17), t.at(18), t.at(19),
             t.at(20),         t.at(21), t.at(22), t.at(23), t.at(24), t.at(25), t.at(26),
             t.at(27),         t.at(28), t.at(29), t.at(30), t.at(31), t.at(32)};
}

Tokens TokensOf(const Car& car) {
  const auto& [kind, t0, t1, t2, t3, t4, t5, t6, t7, t8, t9, t10, t11, t12, t13, t14, t15, t16, t17,
               t18, t19, t20, t21, t22, t23, t24, t25, t26, t27, t28, t29, t30, t31, t32] = car;
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
