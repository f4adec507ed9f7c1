// How lines of the special kinds mark records while a handling file is read.
#include "support/HandlingReading.h"

namespace wheelwright::testing {
namespace {

using HandlingMarksTest = HandlingReading;

TEST_F(HandlingMarksTest, PercentMarksTheRecordOfThatName) {
  Read(CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BOAT"), "% boat 0.5", "; % TAXI"}));
  EXPECT_EQ(Marked(), (Kinds{0, 1}));
}

TEST_F(HandlingMarksTest, TheOtherMarksGoToTheRecordAtTheListPosition) {
  Read(CrLf({VehicleLineOf("TAXI"), VehicleLineOf("BIKE"), VehicleLineOf("PLANE"), "! BIKE 0.5", "$ TAXI"}));
  EXPECT_EQ(Listed(), (Names{"BIKE", "PLANE", "TAXI"}));
  EXPECT_EQ(Marked(), (Kinds{2, 0, 3}));
}

TEST_F(HandlingMarksTest, AMarkBehindTheHeadCounts) {
  Read(CrLf({VehicleLineOf("BUS"), VehicleLineOf("BOAT"), "the boat of this file %"}));
  EXPECT_EQ(Listed(), (Names{"BOAT", "BUS", "the"}));
  EXPECT_EQ(Marked(), (Kinds{0, 1, 1}));
}

TEST_F(HandlingMarksTest, ALaterMarkOverridesAnEarlierOne) {
  const std::vector<std::pair<const char*, int>> kindOfLine = {
      {"%! BUS", 2}, {"!% BUS", 2}, {"$% BUS", 3}, {"$!% BUS", 3}, {"%; ! BUS", 0}};
  for (const auto& [line, kind] : kindOfLine) {
    Read(CrLf({VehicleLineOf("BUS"), line}));
    EXPECT_EQ(Marked(), (Kinds{kind})) << line;
  }
}

TEST_F(HandlingMarksTest, TheMarkedNameIsFoundIgnoringCaseAlsoOfUmlauts) {
  Read(CrLf({VehicleLineOf("M\xC4RZ"), VehicleLineOf("BUS"), "% m\xE4rz 0.5"}));
  EXPECT_EQ(Recorded(), (Names{"M\xC4RZ", "BUS"}));
  EXPECT_EQ(Marked(), (Kinds{1, 0}));
}

TEST_F(HandlingMarksTest, ANameInsideAnotherWordIsMarkedToo) {
  Read(CrLf({VehicleLineOf("BOAT"), VehicleLineOf("AT"), "% SPEEDBOATS"}));
  EXPECT_EQ(Marked(), (Kinds{1, 1}));
}

TEST_F(HandlingMarksTest, OnlyTheFirstRecordOfANameIsMarked) {
  Read(CrLf({VehicleLineOf("BUS"), VehicleLineOf("BUS"), "% BUS"}));
  EXPECT_EQ(Marked(), (Kinds{1, 0, 0, 0}));
}

TEST_F(HandlingMarksTest, ASpecialLineThatBeginsWithANameMakesARecordAndMarksTheFirst) {
  Read(CrLf({VehicleLineOf("BUS", "1.0"), VehicleLineOf("BUS", "2.0").replace(30, 1, "%")}));
  EXPECT_EQ(Recorded(), (Names{"BUS", "BUS", "BUS", "BUS"}));
  EXPECT_EQ(Marked(), (Kinds{1, 0, 0, 0}));
}

TEST_F(HandlingMarksTest, ARecordThatASpecialLineMakesItselfCanBeMarked) {
  Read(CrLf({"BOAT 1500.0 2.6 9.1 % afloat"}));
  EXPECT_EQ(Recorded(), (Names{"BOAT"}));
  EXPECT_EQ(Marked(), (Kinds{1}));
}

TEST_F(HandlingMarksTest, ANewRecordTakesTheMarkOfItsPlaceAway) {
  Read(CrLf({"! BUS", VehicleLineOf("BUS")}));
  EXPECT_EQ(Marked(), (Kinds{0}));
}

TEST_F(HandlingMarksTest, APercentLineBeforeItsVehicleIsAnIndexFailure) {
  EXPECT_EQ(FailureOf(CrLf({VehicleLineOf("TAXI"), "% BOAT", VehicleLineOf("BOAT")})), 9);
}

TEST_F(HandlingMarksTest, APercentLineForACutNameIsAnIndexFailure) {
  EXPECT_EQ(FailureOf(CrLf({VehicleLineOf("SIXTEENCHARACTER"), "% SIXTEENCHARACTER"})), 9);
}

TEST_F(HandlingMarksTest, APercentLineForAnIndentedVehicleIsAnIndexFailure) {
  EXPECT_EQ(FailureOf(CrLf({" " + VehicleLineOf("BOAT"), "% BOAT"})), 9);
}

TEST_F(HandlingMarksTest, TheOtherMarksFailOnlyBehindTheRecordsMadeSoFar) {
  const std::string taxi = VehicleLineOf("TAXI");
  const std::string bike = VehicleLineOf("BIKE");
  for (const char* mark : {"!", "$"}) {
    EXPECT_EQ(FailureOf(CrLf({bike, std::string(mark) + " TAXI", taxi})), 9);
    Read(CrLf({taxi, std::string(mark) + " BIKE", bike}));
    EXPECT_EQ(Marked(), (Kinds{*mark == '!' ? 2 : 3, 0}));
  }
}

TEST_F(HandlingMarksTest, AFailureLeavesWhatWasReadUntilThen) {
  EXPECT_EQ(FailureOf(CrLf({"; Author: Ada", "TAXI 1500.0 2.60", "% BOAT", VehicleLineOf("BOAT")})), 9);
  EXPECT_EQ(Listed(), (Names{"BOAT", "TAXI"}));
  EXPECT_EQ(Recorded(), (Names{"TAXI"}));
  EXPECT_EQ(file.author, "Ada");
  EXPECT_EQ(file.problems, LineProblems{WrongCount("TAXI", 3)});
}

}  // namespace
}  // namespace wheelwright::testing
