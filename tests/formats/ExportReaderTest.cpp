// What an import makes of the lines: new names first, then records, for which every name counts.
#include "core/Text.h"
#include "formats/ExportFile.h"
#include "support/TableTexts.h"
#include "support/VehicleTokens.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

// A text taken into a list and a table that hold one vehicle.
struct Imported {
  explicit Imported(const std::string& text, const std::string& known = "BUS") : list{known} {
    const Texts newNames = NewNamesIn(text, list);
    list.insert(list.end(), newNames.begin(), newNames.end());
    std::stable_sort(list.begin(), list.end(), SortsBefore);
    ReadExport(text, list, cars, problems);
  }

  Texts Names() const {
    const Texts all = NamesOf(cars);
    return {all.begin() + 1, all.end()};
  }

  Texts list;
  Table<Car> cars = TableOf(std::vector<Car>{CarOf(GoodTokens("BUS"))});
  LineProblems problems;
};

Texts ListWith(const std::string& line) { return Imported(line + "\r\n").list; }

TEST(ExportReaderTest, ANewNameNeedsALineOfMoreThanFourteenCharacters) {
  EXPECT_EQ(ListWith("VAN           "), Texts{"BUS"});
  EXPECT_EQ(ListWith("VAN           1"), (Texts{"BUS", "VAN"}));
}

TEST(ExportReaderTest, ASemicolonInTheFirstFourteenColumnsMakesAComment) {
  EXPECT_EQ(ListWith(";VAN          1500.0"), Texts{"BUS"});
  EXPECT_EQ(ListWith("VAN          ;1500.0"), Texts{"BUS"});
  EXPECT_EQ(ListWith("VAN           ;1500.0"), (Texts{"BUS", "VAN"}));
}

TEST(ExportReaderTest, ANameIsTheHeadOfTheLineCutAtBlanks) {
  EXPECT_EQ(ListWith("  MAIL VAN    1500.0"), (Texts{"BUS", "MAIL VAN"}));
  EXPECT_EQ(ListWith("\tVAN\t         1500.0"), (Texts{"\tVAN\t", "BUS"}));
  EXPECT_EQ(ListWith("VAN 1500.0 1.9 4.6"), (Texts{"BUS", "VAN 1500.0 1.9"}));
  EXPECT_EQ(ListWith("% VAN         1500.0"), (Texts{"% VAN", "BUS"}));
  EXPECT_EQ(ListWith("              1"), (Texts{"", "BUS"}));
}

TEST(ExportReaderTest, NewNamesAreComparedWithCaseAndStandOnceInTheList) {
  EXPECT_EQ(NewNamesIn(CrLf({VehicleLineOf("Bus"), VehicleLineOf("BUS"), VehicleLineOf("bus"),
                             VehicleLineOf("Bus")}),
                       {"BUS"}),
            (Texts{"Bus", "bus"}));
}

TEST(ExportReaderTest, RecordsComeInTheOrderOfTheFile) {
  EXPECT_EQ(Imported(CrLf({VehicleLineOf("VAN"), VehicleLineOf("CAB")})).Names(), (Texts{"VAN", "CAB"}));
}

TEST(ExportReaderTest, ARecordHasNoLineKindWhateverTheMark) {
  const Imported imported(CrLf({"% VAN         1500.0"}));
  EXPECT_EQ(imported.Names(), Texts{"%"});
  EXPECT_EQ(imported.cars.At(1).LineKind, kOrdinaryVehicle);
}

TEST(ExportReaderTest, CommentsAreNotCutOff) {
  EXPECT_EQ(Imported(VehicleLineOf("VAN") + " 7 ; remark\r\n").problems, LineProblems{WrongCount("VAN", 36)});
  EXPECT_EQ(Imported(CrLf({"BUS;           the old one"})).Names(), Texts{"BUS;"});
}

TEST(ExportReaderTest, AKnownNameTakesAnyLineItBegins) {
  EXPECT_EQ(Imported(CrLf({VehicleLineOf("BUS")})).Names(), Texts{"BUS"});
  EXPECT_EQ(Imported(CrLf({"BUS 7.5"})).Names(), Texts{"BUS"});
  EXPECT_EQ(Imported(CrLf({"bus 1"})).Names(), Texts{});
}

TEST(ExportReaderTest, ANameThatBeginsAnotherTakesItsLineTooWithItsProblems) {
  const Imported imported(CrLf({"BUSX          1500.0"}));
  EXPECT_EQ(imported.list, (Texts{"BUS", "BUSX"}));
  EXPECT_EQ(imported.Names(), (Texts{"BUSX", "BUSX"}));
  EXPECT_EQ(imported.cars.At(1), imported.cars.At(2));
  EXPECT_EQ(imported.problems, (LineProblems{WrongCount("BUSX", 2), WrongCount("BUSX", 2)}));
}

TEST(ExportReaderTest, TwoEqualNamesTakeALineTwice) {
  Table<Car> cars = TableOf(std::vector<Car>{CarOf(GoodTokens("CAB"))});
  LineProblems problems;
  ReadExport(CrLf({VehicleLineOf("CAB")}), {"CAB", "CAB"}, cars, problems);
  EXPECT_EQ(NamesOf(cars), (Texts{"CAB", "CAB", "CAB"}));
}

TEST(ExportReaderTest, AnIndentedLineIsListedButNotTaken) {
  const Imported imported(" " + VehicleLineOf("VAN") + "\r\n");
  EXPECT_EQ(imported.list, (Texts{"BUS", "VAN"}));
  EXPECT_EQ(imported.Names(), Texts{});
}

TEST(ExportReaderTest, AnEmptyNameTakesEveryLine) {
  const Imported imported(CrLf({"; remark", "", "              1", VehicleLineOf("VAN")}));
  EXPECT_EQ(imported.list, (Texts{"", "BUS", "VAN"}));
  EXPECT_EQ(imported.Names(), (Texts{";", "0.0", "1", "VAN", "VAN"}));
}

// The first record of a line leaves it with single blanks and none in front.
TEST(ExportReaderTest, NamesBehindTheFirstHitMeetTheCleanedLine) {
  EXPECT_EQ(Imported(CrLf({"              1", "  BUS  7"})).Names(), (Texts{"1", "BUS", "BUS"}));
  EXPECT_EQ(Imported(CrLf({"MAIL  VAN 7"}), "MAIL  VAN").Names(), Texts{"MAIL"});
  EXPECT_EQ(Imported(CrLf({"MAIL          1", "MAIL  VAN 7"}), "MAIL  VAN").Names(), (Texts{"MAIL", "MAIL"}));
  EXPECT_EQ(Imported(CrLf({"BUS\t1500.0\t1.9\t4.6"})).Names(), Texts{"BUS"});
}

TEST(ExportReaderTest, ALongNameIsCutInTheListOnly) {
  const Imported imported(CrLf({VehicleLineOf("FIFTEENLETTERSX"), VehicleLineOf("FOURTEENLETTER")}));
  EXPECT_EQ(imported.list, (Texts{"BUS", "FIFTEENLETTERS", "FOURTEENLETTER"}));
  EXPECT_EQ(imported.Names(), (Texts{"FIFTEENLETTERSX", "FOURTEENLETTER"}));
}

TEST(ExportReaderTest, ACarriageReturnEndsALineAndALineFeedAloneNone) {
  const Imported imported(VehicleLineOf("VAN") + "\n" + VehicleLineOf("CAB") + "\r" + VehicleLineOf("AXO"));
  EXPECT_EQ(imported.Names(), (Texts{"VAN", "AXO"}));
  EXPECT_EQ(imported.cars.At(1).RearLights, "1\nCAB");
}

}  // namespace
}  // namespace wheelwright::testing
