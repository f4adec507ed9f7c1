#include "formats/ExportFile.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

Car Vehicle(const std::string& name, const std::string& mass = "1500.0") {
  return CarOf(TokensWith(name, 1, mass));
}

class ExportWriterTest : public ::testing::Test {
 protected:
  WrittenVehicles Vehicles() const { return {names, cars, author, created}; }

  // The lines of an export behind its head.
  std::string Data() const { return WriteExport(Vehicles()).substr(ExportHeader(Vehicles()).size()); }

  Texts names;
  Table<Car> cars;
  std::string author = "Mira K\xF6nig";
  std::string created = "14 March 2004";
};

TEST_F(ExportWriterTest, TheVehiclesStandBetweenAHeadAndAnEnd) {
  names = {"BUS", "TAXI"};
  cars = TableOf(std::vector<Car>{Vehicle("TAXI"), Vehicle("BUS", "5500.0")});
  EXPECT_EQ(WriteExport(Vehicles()),
            CrLf({"; File created with Wheelwright V1.0.0", "; Homepage: https://wheelwright.example/",
                  "; Author: Mira K\xF6nig", "; Created 14 March 2004", ";", "; > COMMENTS <",
                  "; ------------", "; TWEAK AT YOUR OWN RISK", ";", "; > THE DATA <", "; ------------", ";",
                  VehicleLineOf("BUS", "5500.0"), VehicleLineOf("TAXI"), ";", ";the end"}));
}

TEST_F(ExportWriterTest, ANameGivesALineForEachRecordThatBearsItWithCase) {
  names = {"BUS", "CAB"};
  cars = TableOf(std::vector<Car>{Vehicle("BUS"), Vehicle("Bus"), Vehicle("BUS", "2.0")});
  EXPECT_EQ(Data(), CrLf({VehicleLineOf("BUS"), VehicleLineOf("BUS", "2.0"), ";", ";the end"}));
}

TEST_F(ExportWriterTest, TheKindOfASpecialLineIsNotWritten) {
  names = {"SLOOP"};
  Car sloop = Vehicle("SLOOP");
  sloop.LineKind = kPercentLine;
  cars = TableOf(std::vector<Car>{sloop});
  EXPECT_EQ(Data(), CrLf({VehicleLineOf("SLOOP"), ";", ";the end"}));
}

TEST_F(ExportWriterTest, WithoutATableANameIsAnIndexFailure) {
  names = {"BUS"};
  EXPECT_EQ(NumberThrownBy([&] { WriteExport(Vehicles()); }), 9);
  EXPECT_EQ(NumberThrownBy([&] { WriteTuningList(Vehicles()); }), 9);
}

TEST_F(ExportWriterTest, ATuningListHasABlockForEachNameThatHasARecord) {
  names = {"BUS", "GONE", "Taxi"};
  Car taxi = Vehicle("Taxi");
  taxi.SuspensionForceLevel = "2";
  taxi.SuspensionDampingLevel = "";
  cars = TableOf(std::vector<Car>{taxi, Vehicle("BUS"), Vehicle("TAXI")});
  EXPECT_EQ(WriteTuningList(Vehicles()),
            "'BUS\r\n"
            "Kopie_Cars(0).CarName = \"BUS\"\r\n"
            "Kopie_Cars(0).SuspensionForceLevel = \"1.6\"\r\n"
            "Kopie_Cars(0).SuspensionDampingLevel = \"0.08\"\r\n"
            "Kopie_Cars(0).suspension_upper_limit = \"0.35\"\r\n"
            "Kopie_Cars(0).suspension_lower_limit = \"-0.16\"\r\n"
            "Kopie_Cars(0).IsSportCar = False\r\n"
            "\r\n"
            "\r\n"
            "'Taxi\r\n"
            "Kopie_Cars(2).CarName = \"Taxi\"\r\n"
            "Kopie_Cars(2).SuspensionForceLevel = \"2\"\r\n"
            "Kopie_Cars(2).SuspensionDampingLevel = \"\"\r\n"
            "Kopie_Cars(2).suspension_upper_limit = \"0.35\"\r\n"
            "Kopie_Cars(2).suspension_lower_limit = \"-0.16\"\r\n"
            "Kopie_Cars(2).IsSportCar = False\r\n"
            "\r\n"
            "\r\n");
}

TEST_F(ExportWriterTest, TwoRecordsOfANameShareTheNumberInATuningList) {
  names = {"CAB"};
  cars = TableOf(std::vector<Car>{Vehicle("CAB")});
  const std::string one = WriteTuningList(Vehicles());
  cars = TableOf(std::vector<Car>{Vehicle("CAB"), Vehicle("CAB")});
  EXPECT_EQ(WriteTuningList(Vehicles()), one + one);
}

}  // namespace
}  // namespace wheelwright::testing
