#include "core/CodePage.h"
#include "screen/Lists.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace wheelwright::testing {
namespace {

constexpr int kInvalidCall = 5;
constexpr int kInvalidValue = 380;

using Rows = std::vector<std::string>;

// A list on a window of its own that counts how often its click runs.
template <class List>
struct Counted : List {
  explicit Counted(Window& window, Order order = Order::Arrival) : List(window, "list", order) {
    this->clicked = [this] { ++runs; };
  }
  int runs = 0;
};

class ListsTest : public ::testing::Test {
 protected:
  Window window{"frmTest", "Test"};
  Counted<PickList> list{window};
  Counted<PickList> sorted{window, Order::Sorted};
  Counted<MarkList> marks{window, Order::Sorted};
};

TEST_F(ListsTest, AListStartsEmptyWithNothingChosen) {
  EXPECT_EQ(list.Rows(), Rows{});
  EXPECT_EQ(list.Row(), RowList::kNoRow);
  EXPECT_EQ(list.Text(), "");
}

TEST_F(ListsTest, ARowThatGetsTheTextItHasIsNoNews) {
  list.AddRow("BUS");
  int told = 0;
  list.notice = [&told](Aspect) { ++told; };
  list.ReplaceRow(0, "BUS");
  EXPECT_EQ(told, 0);
  list.ReplaceRow(0, "VAN");
  EXPECT_EQ(told, 1);
}

TEST_F(ListsTest, AListKeepsTheOrderOfArrival) {
  list.AddRow("VAN");
  list.AddRows({"BUS", "van"});
  EXPECT_EQ(list.Rows(), (Rows{"VAN", "BUS", "van"}));
  EXPECT_EQ(list.Count(), 3);
}

TEST_F(ListsTest, ChoosingRunsTheClickWithTheNewRowChosen) {
  list.AddRows({"BUS", "VAN"});
  std::string seen;
  list.clicked = [&] { seen = list.Text(); };
  list.Choose(1);
  EXPECT_EQ(list.Row(), 1);
  EXPECT_EQ(seen, "VAN");
}

TEST_F(ListsTest, ChoosingTheChosenRowRunsTheClickAgain) {
  list.AddRows({"BUS", "VAN"});
  list.Choose(1);
  list.Choose(1);
  EXPECT_EQ(list.runs, 2);
}

TEST_F(ListsTest, AListThatWantsAChangeRunsTheClickOnlyWhenTheRowChanges) {
  list.RunClickOnlyWhenRowChanges();
  list.AddRows({"BUS", "VAN"});
  list.Choose(0);
  EXPECT_EQ(list.runs, 1);
  list.Choose(0);
  EXPECT_EQ(list.runs, 1);
  list.Choose(1);
  EXPECT_EQ(list.runs, 2);
}

TEST_F(ListsTest, APersonsChoiceAlwaysRunsTheClick) {
  list.RunClickOnlyWhenRowChanges();
  list.AddRows({"BUS", "VAN"});
  list.ChooseByHand(1);
  list.ChooseByHand(1);
  EXPECT_EQ(list.Row(), 1);
  EXPECT_EQ(list.runs, 2);
}

TEST_F(ListsTest, ChoosingARowThatIsNotThereIsAnInvalidValueAndChangesNothing) {
  EXPECT_EQ(NumberThrownBy([&] { list.Choose(0); }), kInvalidValue);
  list.AddRows({"BUS", "VAN"});
  list.Choose(1);
  EXPECT_EQ(NumberThrownBy([&] { list.Choose(2); }), kInvalidValue);
  EXPECT_EQ(NumberThrownBy([&] { list.Choose(-1); }), kInvalidValue);
  EXPECT_EQ(list.Row(), 1);
  EXPECT_EQ(list.runs, 1);
}

TEST_F(ListsTest, ClearingTakesTheChoiceAwayAndRunsNothing) {
  list.AddRows({"BUS", "VAN"});
  list.Choose(1);
  list.Clear();
  EXPECT_EQ(list.Rows(), Rows{});
  EXPECT_EQ(list.Row(), RowList::kNoRow);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(list.runs, 1);
}

TEST_F(ListsTest, AfterAClearTheSameRowIsAChangeAgain) {
  list.RunClickOnlyWhenRowChanges();
  list.AddRow("BUS");
  list.Choose(0);
  list.Clear();
  list.AddRow("BUS");
  list.Choose(0);
  EXPECT_EQ(list.runs, 2);
}

TEST_F(ListsTest, RemovingTheChosenRowLeavesNothingChosen) {
  list.AddRows({"BUS", "VAN", "TAXI"});
  list.Choose(1);
  list.RemoveRow(1);
  EXPECT_EQ(list.Rows(), (Rows{"BUS", "TAXI"}));
  EXPECT_EQ(list.Row(), RowList::kNoRow);
  EXPECT_EQ(list.runs, 1);
}

TEST_F(ListsTest, RemovingAnotherRowLeavesTheSameEntryChosen) {
  list.AddRows({"BUS", "VAN", "TAXI"});
  list.Choose(1);
  list.RemoveRow(0);
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(list.Text(), "VAN");
  list.RemoveRow(1);
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(list.runs, 1);
}

TEST_F(ListsTest, RemovingARowThatIsNotThereIsAnInvalidCall) {
  EXPECT_EQ(NumberThrownBy([&] { list.RemoveRow(0); }), kInvalidCall);
  list.AddRow("BUS");
  EXPECT_EQ(NumberThrownBy([&] { list.RemoveRow(1); }), kInvalidCall);
  EXPECT_EQ(NumberThrownBy([&] { list.RemoveRow(-1); }), kInvalidCall);
  EXPECT_EQ(list.Rows(), Rows{"BUS"});
}

TEST_F(ListsTest, InsertingARowLeavesTheSameEntryChosen) {
  sorted.AddRows({"BUS", "VAN"});
  sorted.Choose(1);
  sorted.AddRow("TAXI");
  EXPECT_EQ(sorted.Row(), 2);
  sorted.AddRows({"ZEBRA", "AMBULANCE", "COACH"});
  EXPECT_EQ(sorted.Row(), 4);
  EXPECT_EQ(sorted.Text(), "VAN");
  EXPECT_EQ(sorted.runs, 1);
}

TEST_F(ListsTest, AnEntryEqualToTheChosenOneGoesBehindIt) {
  sorted.AddRows({"BUS", "VAN"});
  sorted.Choose(1);
  sorted.AddRow("van");
  EXPECT_EQ(sorted.Rows(), (Rows{"BUS", "VAN", "van"}));
  EXPECT_EQ(sorted.Row(), 1);
}

TEST_F(ListsTest, ReplacingARowLeavesItWhereItIsInASortedListToo) {
  sorted.AddRows({"BUS", "COACH", "VAN"});
  sorted.Choose(0);
  sorted.ReplaceRow(0, "ZEBRA");
  EXPECT_EQ(sorted.Rows(), (Rows{"ZEBRA", "COACH", "VAN"}));
  EXPECT_EQ(sorted.Row(), 0);
  EXPECT_EQ(sorted.Text(), "ZEBRA");
  EXPECT_EQ(sorted.runs, 1);
}

TEST_F(ListsTest, ReplacingARowThatIsNotThereIsAnInvalidCall) {
  EXPECT_EQ(NumberThrownBy([&] { list.ReplaceRow(0, "x"); }), kInvalidCall);
  list.AddRow("BUS");
  EXPECT_EQ(NumberThrownBy([&] { list.ReplaceRow(1, "x"); }), kInvalidCall);
  EXPECT_EQ(NumberThrownBy([&] { list.ReplaceRow(-1, "x"); }), kInvalidCall);
  EXPECT_EQ(list.Rows(), Rows{"BUS"});
}

TEST_F(ListsTest, ASortedListIgnoresCaseAndPutsAPrefixFirst) {
  for (const char* name : {"busx", "VAN", "Bus", "_AMB", "BUSA", "", "9"}) sorted.AddRow(name);
  EXPECT_EQ(sorted.Rows(), (Rows{"", "9", "_AMB", "Bus", "BUSA", "busx", "VAN"}));
}

TEST_F(ListsTest, ASortedListPutsUmlautsBehindAllPlainLettersInEitherCase) {
  for (const char* name : {"äB", "Zebra", "Öl", "ÄA", "ärger", "über"}) sorted.AddRow(FromUnicode(name));
  Rows rows;
  for (const char* name : {"Zebra", "ÄA", "äB", "ärger", "Öl", "über"}) rows.push_back(FromUnicode(name));
  EXPECT_EQ(sorted.Rows(), rows);
}

TEST_F(ListsTest, EqualTextsKeepTheOrderOfArrival) {
  sorted.AddRow("van");
  sorted.AddRows({"VAN", "Bus", "Van"});
  sorted.AddRow("vaN");
  EXPECT_EQ(sorted.Rows(), (Rows{"Bus", "van", "VAN", "Van", "vaN"}));
}

TEST_F(ListsTest, AmongRowsThatAreOutOfOrderAnEntryGoesBeforeTheFirstGreaterOne) {
  sorted.AddRows({"BUS", "COACH", "TAXI", "VAN"});
  sorted.ReplaceRow(0, "ZEBRA");
  sorted.AddRow("MULE");
  EXPECT_EQ(sorted.Rows(), (Rows{"MULE", "ZEBRA", "COACH", "TAXI", "VAN"}));
  sorted.ReplaceRow(4, "AMBULANCE");
  sorted.AddRow("UHAUL");
  EXPECT_EQ(sorted.Rows(), (Rows{"MULE", "UHAUL", "ZEBRA", "COACH", "TAXI", "AMBULANCE"}));
  sorted.AddRow("ZZ");
  EXPECT_EQ(sorted.Rows().back(), "ZZ");
}

TEST_F(ListsTest, AddingRemovingAndReplacingRunNothing) {
  sorted.AddRow("BUS");
  sorted.AddRows({"VAN", "COACH"});
  sorted.ReplaceRow(0, "CAB");
  sorted.RemoveRow(2);
  sorted.AddRows({});
  EXPECT_EQ(sorted.runs, 0);
}

TEST_F(ListsTest, MarkedRowsComeInOrderAndNothingIsChosen) {
  marks.AddRows({"BUS", "COACH", "VAN"});
  marks.MarkByHand({2, 0});
  EXPECT_EQ(marks.Marked(), (std::vector<int>{0, 2}));
  EXPECT_TRUE(marks.IsMarked(2));
  EXPECT_FALSE(marks.IsMarked(1));
  EXPECT_FALSE(marks.IsMarked(3));
  EXPECT_EQ(marks.Row(), RowList::kNoRow);
  EXPECT_EQ(marks.runs, 0);
}

TEST_F(ListsTest, MarkingReplacesTheMarksThatWereThere) {
  marks.AddRows({"BUS", "COACH", "VAN"});
  marks.MarkByHand({0, 1});
  marks.MarkByHand({2});
  EXPECT_EQ(marks.Marked(), std::vector<int>{2});
  marks.MarkByHand({});
  EXPECT_EQ(marks.Marked(), std::vector<int>{});
}

TEST_F(ListsTest, MarkingARowThatIsNotThereIsAnInvalidValueAndChangesNothing) {
  marks.AddRows({"BUS", "COACH"});
  marks.MarkByHand({1});
  EXPECT_EQ(NumberThrownBy([&] { marks.MarkByHand({0, 2}); }), kInvalidValue);
  EXPECT_EQ(NumberThrownBy([&] { marks.MarkByHand({-1}); }), kInvalidValue);
  EXPECT_EQ(marks.Marked(), std::vector<int>{1});
}

TEST_F(ListsTest, MarksStayWithTheirEntriesWhenOthersComeAndGo) {
  marks.AddRows({"BUS", "COACH", "VAN"});
  marks.MarkByHand({0, 2});
  marks.AddRows({"AMBULANCE", "TAXI"});
  EXPECT_EQ(marks.Rows(), (Rows{"AMBULANCE", "BUS", "COACH", "TAXI", "VAN"}));
  EXPECT_EQ(marks.Marked(), (std::vector<int>{1, 4}));
  marks.RemoveRow(2);
  EXPECT_EQ(marks.Marked(), (std::vector<int>{1, 3}));
  marks.RemoveRow(1);
  EXPECT_EQ(marks.Marked(), std::vector<int>{2});
  marks.ReplaceRow(2, "ZEBRA");
  EXPECT_EQ(marks.Marked(), std::vector<int>{2});
}

TEST_F(ListsTest, RemovingTheMarkedRowsLeavesTheOthersUnmarked) {
  marks.AddRows({"BUS", "COACH", "TAXI", "VAN"});
  marks.MarkByHand({0, 2, 3});
  marks.RemoveMarked();
  EXPECT_EQ(marks.Rows(), Rows{"COACH"});
  EXPECT_EQ(marks.Marked(), std::vector<int>{});
}

TEST_F(ListsTest, AClearedListHasNoMarks) {
  marks.AddRows({"BUS", "VAN"});
  marks.MarkByHand({1});
  marks.Clear();
  marks.AddRows({"BUS", "VAN"});
  EXPECT_EQ(marks.Marked(), std::vector<int>{});
}

TEST_F(ListsTest, AnUnsortedListOfMarksCanLoseARowThatWasNeverMarked) {
  Counted<MarkList> unsorted{window};
  unsorted.AddRows({"TAXI", "BUS", "VAN"});
  unsorted.RemoveRow(2);
  EXPECT_EQ(unsorted.Rows(), (Rows{"TAXI", "BUS"}));
  EXPECT_EQ(unsorted.Marked(), std::vector<int>{});
}

}  // namespace
}  // namespace wheelwright::testing
