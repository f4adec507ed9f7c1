// The files of samples/: what they hold, and that the laws hold for them too.
#include "core/DiskFiles.h"
#include "formats/ColorFile.h"
#include "formats/DefinitionFile.h"
#include "formats/HandlingFile.h"
#include "oracle/FormatLaws.h"
#include "oracle/PlainTexts.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/VehicleTokens.h"

#include <gtest/gtest.h>
#include <set>

namespace wheelwright::testing {
namespace {

std::string Sample(const std::string& name) {
  return DiskFiles().Read(std::string(WHEELWRIGHT_SOURCE_DIR) + "/samples/" + name);
}

TEST(HandlingSample, HasSixtySixVehiclesWithoutAProblem) {
  HandlingFile file;
  ReadHandling(Sample("handling.cfg"), file);
  EXPECT_EQ(file.names.size(), 66U);
  EXPECT_EQ(file.cars.Count(), 66);
  EXPECT_EQ(file.author, "the Wheelwright contributors");
  EXPECT_EQ(file.created, "14 March 2004");
  EXPECT_EQ(file.problems, LineProblems{});
  EXPECT_FALSE(file.hasOddNames);
}

TEST(HandlingSample, KeepsTheLaws) {
  const std::string sample = Sample("handling.cfg");
  EXPECT_EQ(NormalisedPlainly(sample), sample);
  RequireHandlingRead(sample);
  RequireHandlingWritten(sample, ReadPlainly(sample));
  RequireHandlingSaved(sample);
}

TEST(HandlingSample, TheBadFileGivesEveryProblemThereIs) {
  const std::vector<std::pair<const char*, std::vector<int>>> badTokens = {
      {"4711", {0}},
      {"BADBODY", {1, 2, 3, 4, 5, 6, 7, 8}},
      {"BADDRIVE", {9, 10, 11, 12, 13, 14}},
      {"BADENGINE", {16}},
      {"BADBRAKES", {17, 18, 19, 20}},
      {"BADSPRINGS", {21, 22, 26, 27, 28, 29}},
      {"BADREST", {23, 24, 25, 31, 32}},
      {"ALMOST", {2, 25}}};
  LineProblems expected;
  for (const auto& [vehicle, tokens] : badTokens) {
    for (const int token : tokens) expected.push_back(BadToken(vehicle, token));
  }
  expected.insert(expected.end(),
                  {WrongCount("TOOSHORT", 31), WrongCount("VERYSHORT", 2), WrongCount("TOOLONG", 35),
                   WrongCount("SHIFTED", 34), BadToken("SHIFTED", 17)});
  HandlingFile file;
  ReadHandling(Sample("problems.cfg"), file);
  EXPECT_EQ(file.problems, expected);
}

std::set<std::string> ValuesOf(FieldText IdeEntry::*field) {
  DefinitionFile file;
  ReadDefinitions(Sample("default.ide"), file);
  std::set<std::string> values;
  for (const IdeEntry& ide : file.records.Walk()) values.insert(ide.*field);
  return values;
}

TEST(DefinitionSample, HasEveryTypeEveryWheelAndLinesOfElevenToThirteenFields) {
  EXPECT_EQ(ValuesOf(&IdeEntry::HandlingID).size(), 66U);
  EXPECT_EQ(ValuesOf(&IdeEntry::Typ), (std::set<std::string>{"bike", "boat", "car", "heli", "plane"}));
  EXPECT_EQ(ValuesOf(&IdeEntry::Extra1), (std::set<std::string>{"", "-1", "237", "238", "239", "250", "251",
                                                                "252", "253", "254", "255", "256", "257"}));
  EXPECT_EQ(ValuesOf(&IdeEntry::Extra2),
            (std::set<std::string>{"", "0.5", "0.7", "0.75", "0.8", "0.9", "1.1"}));
}

TEST(DefinitionSample, KeepsTheLaws) {
  const std::string sample = Sample("default.ide");
  const std::size_t section = sample.find("\r\ncars\r\n") + 8;
  const std::size_t end = sample.find("\r\nend\r\n", section) + 2;
  RequireDefinitionsRead(sample);
  RequireTidyDefinitionsKept({sample.substr(0, section - 6),
                              PlainLines(sample.substr(section, end - section)), sample.substr(end + 5)});
}

TEST(ColorSample, HasNinetyColorsAndOneToEightPairsForEachVehicleOfTheDefinitions) {
  PaletteSection palette;
  PairsSection pairs;
  ReadPalette(Sample("carcols.dat"), palette);
  ReadPairs(Sample("carcols.dat"), pairs);
  EXPECT_EQ(palette.colors.Count(), 90);
  EXPECT_EQ(TextOf(palette.colors.At(89)), "89: 230,220,204 linen");
  std::set<std::string> models;
  std::set<std::size_t> counts;
  for (const CarColorEntry& entry : pairs.records.Walk()) {
    models.insert(entry.ModelName);
    counts.insert(entry.Pairs.size());
  }
  EXPECT_EQ(models, ValuesOf(&IdeEntry::ModelName));
  EXPECT_EQ(counts, (std::set<std::size_t>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(ColorSample, KeepsTheLaws) {
  const std::string sample = Sample("carcols.dat");
  PaletteSection palette;
  PairsSection pairs;
  ReadPalette(sample, palette);
  ReadPairs(sample, pairs);
  RequireColorsRead(sample);
  RequireColorsWritten(sample, RecordsOf(palette.colors), RecordsOf(pairs.records));
}

}  // namespace
}  // namespace wheelwright::testing
