#include "screen/Fields.h"
#include "support/HeldTables.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>
#include <string>

namespace wheelwright::testing {
namespace {

// A session with these definitions, the first entry of the list chosen and nothing pending.
class Holding : public TestSession {
 public:
  explicit Holding(const std::vector<IdeEntry>& ides) {
    HoldIdes(*this, ides);
    main.cmbAutos.ChooseByHand(0);
  }
};

IdeEntry Ide(const std::string& handlingId, const std::string& typ, const std::string& anim,
             const std::string& klasse) {
  IdeEntry entry = TaggedIde(handlingId, handlingId);
  entry.Typ = typ;
  entry.Anim = anim;
  entry.Klasse = klasse;
  return entry;
}

// What the inputs of the two tabs show, but for the extras.
Texts Shown(const FrmMain& m) {
  return {m.txtID.Text(),         m.txtModelName.Text(), m.txtTXDName.Text(),  m.cmbTyp.Text(),
          m.txtHandlingID.Text(), m.txtGameName.Text(),  m.cmbAnim.Text(),     m.cmbKlasse.Text(),
          m.txtFrequenz.Text(),   m.txtLevel.Text(),     m.txtCompRules.Text()};
}

TEST(DefinitionRecord, ShowsEveryFieldOfTheChosenDefinition) {
  Holding test({Ide("A", "car", "null", "normal"), Ide("B", "heli", "coach", "moped")});
  PickByHand(test.main.cmbAutos, "B");
  EXPECT_EQ(Shown(test.main), (Texts{"ID B", "ModelName B", "TXDName B", "heli", "B", "GameName B", "coach",
                                     "moped", "Frequenz B", "Level B", "CompRules B"}));
  EXPECT_EQ(test.vars.CurrentIde, 1);
}

TEST(DefinitionRecord, ADisplayChangesNoFieldAndMarksNothing) {
  const std::vector<IdeEntry> ides = {Ide("A", "car", "van", "taxi"), Ide("B", "plane", "bikev", "big")};
  Holding test(ides);
  const Texts before = TextsOf(test.vars.Kopie_Ides);
  for (const char* key : {"B", "A", "B"}) {
    PickByHand(test.main.cmbAutos, key);
    EXPECT_EQ(TextsOf(test.vars.Ides), before);
    EXPECT_TRUE(test.vars.IsSaved);
  }
}

TEST(DefinitionRecord, ADisplayBehindAnEditLeavesItPending) {
  Holding test({TaggedIde("A", "a"), TaggedIde("B", "b")});
  test.main.txtID.EditByHand("7");
  PickByHand(test.main.cmbAutos, "B");
  EXPECT_FALSE(test.vars.IsSaved);
}

TEST(DefinitionRecord, LeavesTheVehiclesOfTheOtherKindsCurrent) {
  Holding test({TaggedIde("A", "a"), TaggedIde("B", "b")});
  test.vars.CurrentCar = 5;
  test.vars.CurrentCarColor = 6;
  PickByHand(test.main.cmbAutos, "B");
  EXPECT_EQ(test.vars.CurrentCar, 5);
  EXPECT_EQ(test.vars.CurrentCarColor, 6);
}

TEST(DefinitionRecord, ShowsTheFirstOfTwoDefinitionsWithTheSameKey) {
  Holding test({TaggedIde("A", "a"), TaggedIde("B", "first"), TaggedIde("B", "second")});
  test.main.cmbAutos.ChooseByHand(2);
  EXPECT_EQ(test.main.txtID.Text(), "ID first");
  EXPECT_EQ(test.vars.CurrentIde, 1);
}

TEST(DefinitionRecord, TheKeyIsComparedWithCase) {
  Holding test({TaggedIde("A", "a"), TaggedIde("b", "small"), TaggedIde("B", "capital")});
  PickByHand(test.main.cmbAutos, "B");
  EXPECT_EQ(test.main.txtID.Text(), "ID capital");
}

TEST(DefinitionRecord, AnEntryWithoutADefinitionShowsTheFirstOneAndKeepsItsOwnText) {
  Holding test({TaggedIde("A", "a"), TaggedIde("B", "b")});
  test.main.cmbAutos.AddRow("C");
  PickByHand(test.main.cmbAutos, "B");
  PickByHand(test.main.cmbAutos, "C");
  EXPECT_EQ(test.vars.CurrentIde, 0);
  EXPECT_EQ(test.main.txtHandlingID.Text(), "A");
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Texts{"A", "B", "C"}));
  EXPECT_TRUE(test.desktop.shown.empty());
}

TEST(DefinitionRecord, FillsTheControlsInTheirOrder) {
  Holding test({Ide("A", "car", "null", "normal"), Ide("B", "plane", "coach", "moped")});
  Texts order;
  FrmMain& m = test.main;
  for (Control* control : std::initializer_list<Control*>{
           &m.txtID, &m.txtModelName, &m.txtTXDName, &m.cmbTyp, &m.txtHandlingID, &m.txtGameName, &m.cmbAnim,
           &m.cmbKlasse, &m.txtFrequenz, &m.txtLevel, &m.txtCompRules}) {
    control->notice = [&order, control](Aspect) { order.push_back(control->Name()); };
  }
  PickByHand(test.main.cmbAutos, "B");
  EXPECT_EQ(order, (Texts{"txtID", "txtHandlingID", "txtModelName", "txtTXDName", "txtGameName", "cmbTyp",
                          "cmbAnim", "cmbKlasse", "txtFrequenz", "txtLevel", "txtCompRules"}));
}

TEST(DefinitionRecord, AHandlingIdOfAnotherDefinitionIsTakenAndThenFindsTheFirst) {
  Holding test({TaggedIde("A", "a"), TaggedIde("B", "b")});
  PickByHand(test.main.cmbAutos, "B");
  test.main.txtHandlingID.EditByHand("A");
  EXPECT_EQ(test.main.cmbAutos.Rows(), (Texts{"A", "A"}));
  test.main.cmbAutos.ChooseByHand(0);
  test.main.cmbAutos.ChooseByHand(1);
  EXPECT_EQ(test.vars.CurrentIde, 0);
  EXPECT_EQ(test.main.txtID.Text(), "ID a");
}

TEST(DefinitionRecord, ATextThatItsListLacksIsShownAsOneFurtherEntryAndKept) {
  Holding test({Ide("A", "boat", "null", "normal"), Ide("B", "train", "walk", "royal")});
  PickByHand(test.main.cmbAutos, "B");
  EXPECT_EQ(test.main.cmbTyp.Rows(), (Texts{"car", "boat", "bike", "heli", "plane", "train"}));
  EXPECT_EQ(test.main.cmbTyp.Text(), "train");
  EXPECT_EQ(test.main.cmbAnim.Text(), "walk");
  EXPECT_EQ(test.main.cmbAnim.Row(), 7);
  EXPECT_EQ(test.main.cmbKlasse.Text(), "royal");
  EXPECT_EQ(test.main.cmbKlasse.Row(), 12);
  EXPECT_EQ(TextsOf(test.vars.Ides), TextsOf(test.vars.Kopie_Ides));
  EXPECT_TRUE(test.vars.IsSaved);
}

TEST(DefinitionRecord, TheNextDisplayTakesTheFurtherEntriesAway) {
  Holding test({Ide("A", "boat", "null", "normal"), Ide("B", "train", "walk", "royal"),
                Ide("C", "", "Null", "NORMAL")});
  PickByHand(test.main.cmbAutos, "B");
  PickByHand(test.main.cmbAutos, "C");
  EXPECT_EQ(test.main.cmbTyp.Rows(), (Texts{"car", "boat", "bike", "heli", "plane", ""}));
  EXPECT_EQ(test.main.cmbAnim.Text(), "Null");
  EXPECT_EQ(test.main.cmbAnim.Count(), 8);
  PickByHand(test.main.cmbAutos, "A");
  EXPECT_EQ(test.main.cmbTyp.Rows(), (Texts{"car", "boat", "bike", "heli", "plane"}));
  EXPECT_EQ(test.main.cmbAnim.Count(), 7);
  EXPECT_EQ(test.main.cmbKlasse.Count(), 12);
  EXPECT_EQ(TextsOf(test.vars.Ides), TextsOf(test.vars.Kopie_Ides));
}

TEST(DefinitionRecord, AFurtherEntryCanBeChosenAgainWhileItsDefinitionIsOnScreen) {
  Holding test({Ide("A", "train", "null", "normal")});
  PickByHand(test.main.cmbTyp, "boat");
  EXPECT_EQ(test.vars.Ides.At(0).Typ, "boat");
  PickByHand(test.main.cmbTyp, "train");
  EXPECT_EQ(test.vars.Ides.At(0).Typ, "train");
}

}  // namespace
}  // namespace wheelwright::testing
