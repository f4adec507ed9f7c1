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

// The name of the control that a field's row points to, empty if it points to none.
template <class Kind>
std::string NameOf(const FrmMain& main, Kind FrmMain::*control) {
  return control == nullptr ? "" : (main.*control).Name();
}

template <class Field>
std::string Described(const FrmMain& main, const Field& field, const std::string& input) {
  return Joined({std::to_string(field.tab), std::to_string(field.tabRow), NameOf(main, field.label),
                 field.caption, std::to_string(field.captionLang), input, NameOf(main, field.info),
                 field.infoCaption, std::to_string(field.infoLang)});
}

TEST(HandlingFieldsTest, EachFieldHasItsSlot) {
  for (std::size_t token = 0; token < kHandlingFieldCount; ++token) {
    const HandlingField& field = kHandlingFields[token];
    const ExpectedHandlingField& expected = kExpectedHandlingFields[token];
    EXPECT_STREQ(field.name, expected.name);
    EXPECT_TRUE(field.value == expected.value) << expected.name;
    EXPECT_EQ(field.namedInProblems, expected.named) << expected.name;
  }
}

TEST(HandlingFieldsTest, EachFieldHasItsRowOfATab) {
  const FrmMain main;
  for (std::size_t token = 0; token < kHandlingFieldCount; ++token) {
    const HandlingField& field = kHandlingFields[token];
    const std::string input =
        NameOf(main, field.text) + NameOf(main, field.pick) + NameOf(main, field.tick);
    EXPECT_EQ(Described(main, field, input), Described(kExpectedHandlingFields[token].shown))
        << field.name;
  }
}

TEST(HandlingFieldsTest, TheDisplayFillsTheFieldsInItsOwnOrder) {
  for (std::size_t token = 0; token < kHandlingFieldCount; ++token)
    EXPECT_EQ(kHandlingFields[token].displayOrder, kExpectedHandlingFields[token].order) << token;
  const auto& byDisplay = HandlingFieldsByDisplay();
  for (std::size_t i = 1; i < byDisplay.size(); ++i)
    EXPECT_LT(byDisplay[i - 1]->displayOrder, byDisplay[i]->displayOrder) << i;
}

struct ExpectedCodes {
  const char* list;
  std::string Car::*value;
  const char* codes;
  int firstLang;
};

TEST(HandlingFieldsTest, ATranslatedListStandsForItsCodes) {
  const std::array<ExpectedCodes, 4> expected = {
      {{"cmbAntrieb", &Car::DriveType, "FR4", 46},
       {"cmbMotor", &Car::EngineType, "PDE", 50},
       {"cmbFrontLichter", &Car::FrontLights, "0123", 82},
       {"cmbRearLichter", &Car::RearLights, "0123", 87}}};
  const FrmMain main;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(NameOf(main, kCodeLists[i].pick), expected[i].list);
    EXPECT_TRUE(kCodeLists[i].value == expected[i].value) << i;
    EXPECT_STREQ(kCodeLists[i].codes, expected[i].codes);
    EXPECT_EQ(kCodeLists[i].firstLang, expected[i].firstLang);
  }
}

TEST(DefinitionFieldsTest, TheFieldsComeInTheOrderOfALine) {
  for (std::size_t position = 0; position < kDefinitionFieldCount; ++position) {
    const ExpectedDefinitionField& expected = kExpectedDefinitionFields[position];
    EXPECT_STREQ(kDefinitionFields[position].name, expected.name);
    EXPECT_TRUE(kDefinitionFields[position].value == expected.value) << expected.name;
  }
}

TEST(DefinitionFieldsTest, EachFieldHasItsRowOfATab) {
  const FrmMain main;
  for (std::size_t position = 0; position < kDefinitionFieldCount; ++position) {
    const DefinitionField& field = kDefinitionFields[position];
    const std::string input = NameOf(main, field.text) + NameOf(main, field.pick);
    EXPECT_EQ(Described(main, field, input), Described(kExpectedDefinitionFields[position].shown))
        << field.name;
  }
}

TEST(DefinitionFieldsTest, TheDisplayFillsAllButTheExtraFieldsInItsOwnOrder) {
  for (std::size_t position = 0; position < kDefinitionFieldCount; ++position)
    EXPECT_EQ(kDefinitionFields[position].displayOrder, kExpectedDefinitionFields[position].order);
  std::vector<std::string> names;
  for (const DefinitionField* field : DefinitionFieldsByDisplay()) names.emplace_back(field->name);
  EXPECT_EQ(names,
            (std::vector<std::string>{"ID", "HandlingID", "ModelName", "TXDName", "GameName", "Typ",
                                      "Anim", "Klasse", "Frequenz", "Level", "CompRules"}));
}

}  // namespace
}  // namespace wheelwright::testing
