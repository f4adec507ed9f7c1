#include "editor/DefinitionRecord.h"
#include "support/HeldTables.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

struct Wheel {
  const char* identifier;
  const char* name;
};
constexpr std::array<Wheel, 10> kOfferedWheels = {{{"237", "Rim"},
                                                   {"238", "Offroad"},
                                                   {"239", "Truck"},
                                                   {"250", "Sport"},
                                                   {"251", "Saloon"},
                                                   {"252", "Lightvan"},
                                                   {"253", "Classic"},
                                                   {"254", "Alloy"},
                                                   {"255", "Lighttruck"},
                                                   {"256", "Smallcar"}}};

IdeEntry Vehicle(const std::string& handlingId, const std::string& typ, const std::string& extra1,
                 const std::string& extra2) {
  IdeEntry entry = TaggedIde(handlingId, handlingId);
  entry.Typ = typ;
  entry.Extra1 = extra1;
  entry.Extra2 = extra2;
  return entry;
}

// A session with these definitions and the first entry of the list on screen.
class Showing : public TestSession {
 public:
  explicit Showing(const std::vector<IdeEntry>& ides) {
    HoldIdes(*this, ides);
    main.cmbAutos.ChooseByHand(0);
  }
  void Show(const std::string& key) { PickByHand(main.cmbAutos, key); }
};

// The Extra controls that are shown.
Texts ShownExtras(const FrmMain& main) {
  Texts shown;
  for (const Control* control : std::initializer_list<const Control*>{
           &main.txtExtra1.label, &main.txtExtra1, &main.cmbExtra1, &main.lblExtra1Info,
           &main.txtExtra2.label, &main.txtExtra2, &*main.txtExtra2.hint}) {
    if (control->IsVisible()) shown.push_back(control->Name());
  }
  return shown;
}

const Texts kExtrasOfACar = {"lblExtra1", "cmbExtra1", "lblExtra1Info",
                             "lblExtra2", "txtExtra2", "lblExtra2Info"};
const Texts kExtrasOfAPlane = {"lblExtra1", "txtExtra1", "lblExtra1Info"};

// The captions of the four labels, first those of the first Extra.
Texts Captions(const FrmMain& main) {
  return {main.txtExtra1.label.Caption(), main.lblExtra1Info.Caption(), main.txtExtra2.label.Caption(),
          main.txtExtra2.hint->Caption()};
}

TEST(TypeRules, ACarHasAWheelAndASecondValue) {
  Showing test({Vehicle("A", "car", "250", "0.8")});
  EXPECT_EQ(ShownExtras(test.main), kExtrasOfACar);
  EXPECT_EQ(Captions(test.main), (Texts{"E145", "E146", "E148", "E149"}));
  EXPECT_EQ(test.main.cmbExtra1.Text(), "Sport");
  EXPECT_EQ(test.main.txtExtra2.Text(), "0.8");
  EXPECT_EQ(test.main.txtExtra1.Text(), "");
}

TEST(TypeRules, APlaneHasAPlainValue) {
  Showing test({Vehicle("A", "plane", "-1", "9")});
  EXPECT_EQ(ShownExtras(test.main), kExtrasOfAPlane);
  EXPECT_EQ(Captions(test.main), (Texts{"E151", "E147", "E148", "E149"}));
  EXPECT_EQ(test.main.txtExtra1.Text(), "-1");
  EXPECT_EQ(test.main.txtExtra2.Text(), "");
  EXPECT_EQ(test.main.cmbExtra1.Row(), RowList::kNoRow);
}

TEST(TypeRules, NoOtherTypeShowsAnyExtraAndNoneChangesACaption) {
  for (const char* typ : {"boat", "bike", "heli", "Car", "Plane", "train", ""}) {
    Showing test({Vehicle("A", "plane", "-1", ""), Vehicle("B", typ, "250", "0.8")});
    test.Show("B");
    EXPECT_EQ(ShownExtras(test.main), Texts{}) << typ;
    EXPECT_EQ(Captions(test.main), (Texts{"E151", "E147", "E148", "E149"}));
    EXPECT_EQ(test.main.txtExtra1.Text(), "-1");
    EXPECT_EQ(test.main.txtExtra2.Text(), "");
  }
}

TEST(TypeRules, EveryWheelIsShownByItsNameAndStoredByItsIdentifier) {
  Showing test({Vehicle("A", "car", "237", "0.8"), Vehicle("B", "boat", "", "")});
  for (const Wheel& wheel : kOfferedWheels) {
    PickByHand(test.main.cmbExtra1, wheel.name);
    EXPECT_EQ(test.vars.Ides.At(0).Extra1, wheel.identifier);
    test.Show("B");
    test.main.cmbExtra1.ChooseByHand(0);
    test.Show("A");
    EXPECT_EQ(test.main.cmbExtra1.Text(), wheel.name);
  }
}

TEST(TypeRules, TheWheelsAreOfferedInTheirOrder) {
  Texts names;
  for (const Wheel& wheel : kOfferedWheels) names.emplace_back(wheel.name);
  const TestSession test;
  EXPECT_EQ(test.main.cmbExtra1.Rows(), names);
  EXPECT_EQ(test.main.cmbTyp.Rows(), (Texts{"car", "boat", "bike", "heli", "plane"}));
}

TEST(TypeRules, ChoosingAWheelMarksTheFileAsChangedAndADisplayDoesNot) {
  Showing test({Vehicle("A", "car", "250", "0.8"), Vehicle("B", "car", "256", "0.7")});
  test.Show("B");
  test.Show("A");
  EXPECT_TRUE(test.vars.IsSaved);
  PickByHand(test.main.cmbExtra1, "Sport");
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(TextsOf(test.vars.Ides), TextsOf(test.vars.Kopie_Ides));
}

TEST(TypeRules, AnUnknownIdentifierLeavesTheListOnTheWheelOfTheVehicleBefore) {
  for (const char* identifier : {"240", "249", "258", "", "0250", "Sport"}) {
    Showing test({Vehicle("A", "car", "254", "0.8"), Vehicle("B", "car", identifier, "0.7")});
    test.Show("B");
    EXPECT_EQ(test.main.cmbExtra1.Text(), "Alloy");
    EXPECT_EQ(test.vars.Ides.At(1).Extra1, identifier);
    EXPECT_TRUE(test.vars.IsSaved);
    PickByHand(test.main.cmbExtra1, "Rim");
    EXPECT_EQ(test.vars.Ides.At(1).Extra1, "237");
  }
}

TEST(TypeRules, TheWheelThatTheListLacksIsShownWhileItsVehicleIsOnScreen) {
  Showing test({Vehicle("A", "car", "254", "0.8"), Vehicle("B", "car", "257", "0.7")});
  test.Show("B");
  EXPECT_EQ(test.main.cmbExtra1.Count(), 11);
  EXPECT_EQ(test.main.cmbExtra1.Text(), "Airtrain_vlo");
  EXPECT_EQ(test.vars.Ides.At(1).Extra1, "257");
  EXPECT_TRUE(test.vars.IsSaved);
  PickByHand(test.main.cmbExtra1, "Rim");
  PickByHand(test.main.cmbExtra1, "Airtrain_vlo");
  EXPECT_EQ(test.vars.Ides.At(1).Extra1, "257");
}

TEST(TypeRules, TheNextDisplayTakesThatWheelAwayWhateverTheVehicleIs) {
  for (const IdeEntry& next : {Vehicle("B", "car", "254", ""), Vehicle("B", "boat", "", ""),
                               Vehicle("B", "plane", "257", ""), Vehicle("B", "car", "240", "")}) {
    Showing test({Vehicle("A", "car", "257", "0.8"), next});
    test.Show("B");
    EXPECT_EQ(test.main.cmbExtra1.Count(), 10);
    EXPECT_EQ(test.main.cmbExtra1.Text(), next.Extra1 == "254" ? "Alloy" : "");
    EXPECT_EQ(TextsOf(test.vars.Ides), TextsOf(test.vars.Kopie_Ides));
  }
}

TEST(TypeRules, ChoosingATypeStoresItAndAppliesItsRules) {
  Showing test({Vehicle("A", "car", "251", "0.8")});
  PickByHand(test.main.cmbTyp, "plane");
  EXPECT_FALSE(test.vars.IsSaved);
  EXPECT_EQ(test.vars.Ides.At(0).Typ, "plane");
  EXPECT_EQ(ShownExtras(test.main), kExtrasOfAPlane);
  EXPECT_EQ(Captions(test.main), (Texts{"E151", "E147", "E148", "E149"}));
  EXPECT_EQ(test.main.txtExtra1.Text(), "251");
  PickByHand(test.main.cmbTyp, "boat");
  EXPECT_EQ(ShownExtras(test.main), Texts{});
}

TEST(TypeRules, APlaneTurnedIntoACarShowsItsWheelAgain) {
  Showing test({Vehicle("A", "car", "251", "0.8")});
  PickByHand(test.main.cmbTyp, "plane");
  test.main.txtExtra1.EditByHand("238");
  PickByHand(test.main.cmbTyp, "car");
  EXPECT_EQ(ShownExtras(test.main), kExtrasOfACar);
  EXPECT_EQ(Captions(test.main), (Texts{"E145", "E146", "E148", "E149"}));
  EXPECT_EQ(test.main.cmbExtra1.Text(), "Offroad");
  EXPECT_EQ(test.main.txtExtra2.Text(), "0.8");
}

TEST(TypeRules, AChangeOfTypeClearsNoField) {
  Showing test({Vehicle("A", "car", "251", "0.8")});
  for (const char* typ : {"boat", "bike", "heli", "plane", "car"}) {
    PickByHand(test.main.cmbTyp, typ);
    EXPECT_EQ(TextOf(test.vars.Ides.At(0)), TextOf(Vehicle("A", typ, "251", "0.8")));
  }
}

TEST(TypeRules, APlaneWithoutAWheelKeepsItsValueAsACarAndTheListStays) {
  Showing test({Vehicle("A", "car", "253", "0.8"), Vehicle("B", "plane", "-1", "")});
  test.Show("B");
  PickByHand(test.main.cmbTyp, "car");
  EXPECT_EQ(test.vars.Ides.At(1).Extra1, "-1");
  EXPECT_EQ(test.main.cmbExtra1.Text(), "Classic");
}

TEST(TypeRules, AHiddenTextKeepsItsContentUntilTheNextPlane) {
  Showing test({Vehicle("A", "plane", "77", ""), Vehicle("B", "car", "250", "0.8")});
  test.Show("B");
  EXPECT_EQ(test.main.txtExtra1.Text(), "77");
  EXPECT_EQ(test.vars.Ides.At(1).Extra1, "250");
}

TEST(TypeRules, TheSecondExtraOfACarIsWrittenThrough) {
  Showing test({Vehicle("A", "car", "250", "0.8")});
  test.main.txtExtra2.EditByHand("1.1");
  EXPECT_EQ(test.vars.Ides.At(0).Extra2, "1.1");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(TypeRules, WithoutADefinitionFileTheRulesFail) {
  TestSession test;
  EXPECT_EQ(NumberThrownBy([&] { ApplyTypeRules(test.session); }), 9);
}

TEST(TypeRules, WithoutAChosenWheelNoneIsStored) {
  Showing test({Vehicle("A", "plane", "77", "")});
  test.vars.IsSaved = true;
  ASSERT_EQ(test.main.cmbExtra1.Row(), RowList::kNoRow);
  StoreWheel(test.session);
  EXPECT_EQ(test.vars.Ides.At(0).Extra1, "77");
  EXPECT_FALSE(test.vars.IsSaved);
}

}  // namespace
}  // namespace wheelwright::testing
