#include "screen/ExpectedFields.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

std::string Joined(const std::vector<std::string>& parts) {
  std::string joined;
  for (const std::string& part : parts) joined += part + "|";
  return joined;
}

std::string Described(const ExpectedRow& row) {
  return Joined({std::to_string(row.tab), std::to_string(row.row), row.label, row.caption,
                 std::to_string(row.lang), row.input, row.info, row.infoCaption,
                 std::to_string(row.infoLang)});
}

template <class Record>
std::string Described(const FrmMain& main, const FieldRow<Record>& field) {
  const auto& [label, hint] = LabelsOf(main, field);
  const Wording info = hint ? hint->Words() : Wording{};
  const auto nameOf = [&](auto input) { return (main.*input).Name(); };
  return Joined({std::to_string(field.tab), std::to_string(field.tabRow), label.Name(), label.Words().design,
                 std::to_string(label.Words().lang), std::visit(nameOf, field.input),
                 hint ? hint->Name() : "", info.design, std::to_string(info.lang)});
}

template <class Fields, class Expected>
void ExpectFields(const Fields& fields, const Expected& expected) {
  const FrmMain main;
  ASSERT_EQ(fields.size(), expected.size());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    EXPECT_TRUE(fields[i].value == expected[i].value) << expected[i].shown.label;
    EXPECT_EQ(fields[i].isNamedInProblems, expected[i].named) << expected[i].shown.label;
    EXPECT_EQ(Described(main, fields[i]), Described(expected[i].shown));
  }
}

TEST(FieldsTest, EachHandlingFieldHasItsSlotAndItsRowInTheOrderOfTheDisplay) {
  ExpectFields(kHandlingFields, kExpectedHandlingFields);
}

TEST(FieldsTest, EachDefinitionFieldHasItsSlotAndItsRowInTheOrderOfTheDisplay) {
  ExpectFields(kDefinitionFields, kExpectedDefinitionFields);
}

struct ExpectedCodes {
  const char* list;
  FieldText Car::*value;
  const char* codes;
  int firstLang;
};

TEST(FieldsTest, ATranslatedListStandsForItsCodes) {
  const std::array<ExpectedCodes, 4> expected = {{{"cmbAntrieb", &Car::DriveType, "FR4", 46},
                                                  {"cmbMotor", &Car::EngineType, "PDE", 50},
                                                  {"cmbFrontLichter", &Car::FrontLights, "0123", 82},
                                                  {"cmbRearLichter", &Car::RearLights, "0123", 87}}};
  const FrmMain main;
  std::size_t next = 0;
  for (const FieldRow<Car>& field : kHandlingFields) {
    const auto* const list = InputOf<PickList>(main, field);
    if (list == nullptr) continue;
    const ExpectedCodes& row = expected.at(next++);
    EXPECT_EQ(list->Name(), row.list);
    EXPECT_TRUE(field.value == row.value) << row.list;
    EXPECT_EQ(field.entries.codes, row.codes);
    EXPECT_EQ(field.entries.words.size(), field.entries.codes.size());
    EXPECT_EQ(field.entries.firstLang, row.firstLang);
  }
  EXPECT_EQ(next, expected.size());
}

}  // namespace
}  // namespace wheelwright::testing
