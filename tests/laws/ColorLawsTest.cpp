// What holds for every colour file, however odd.
#include "gamefiles/ColorReader.h"
#include "gamefiles/ColorWriter.h"
#include "support/ColorReference.h"
#include "support/DefinitionReference.h"
#include "support/Generators.h"
#include "support/HandlingReference.h"
#include "support/TableRecords.h"
#include "support/TableTexts.h"
#include "support/TestSession.h"
#include "support/Thrown.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace wheelwright::testing {
namespace {

constexpr const char* kPath = TestSession::kColorPath;

std::string WithoutLineEnds(std::string text) {
  std::erase_if(text, [](char byte) { return byte == '\r' || byte == '\n'; });
  return text;
}

std::string Number() {
  return *rc::gen::weightedElement<std::string>({{8, "0"},
                                                 {8, "1"},
                                                 {8, "200"},
                                                 {4, "300"},
                                                 {4, "-7"},
                                                 {2, "1.5"},
                                                 {1, "32768"},
                                                 {1, ""},
                                                 {1, "x"}});
}

std::string ColorLine() {
  return Number() + "," + Number() + "," + Number() +
         *rc::gen::weightedElement<std::string>(
             {{8, "\t"}, {8, "\t\t\t"}, {2, "  "}, {1, ",4\t"}}) +
         *rc::gen::weightedElement<std::string>({{8, "# 7 oak"},
                                                 {4, "# 12 elm tree"},
                                                 {2, ""},
                                                 {1, "#9 x"},
                                                 {1, "# oak"},
                                                 {1, "\t#\t1\tash"}});
}

std::string VehicleLine() {
  std::string line = *rc::gen::element<std::string>("bus", "cab ", "\tvan", "car", "");
  for (int numbers = *rc::gen::weightedElement<int>({{1, 0}, {1, 1}, {10, 2}, {1, 3}, {10, 4}});
       numbers > 0; --numbers) {
    line += *rc::gen::element<std::string>(",", ", ", ",\t") + Number();
  }
  return line + *rc::gen::weightedElement<std::string>({{16, ""}, {2, ","}, {1, ",,"}, {2, "# x"}});
}

std::string Comment() {
  return *rc::gen::element<std::string>("# A", "#", "# old greys", "    # x y", "     # x y",
                                        "#end", "# File created with Wheelwright V0",
                                        "     # File created with Wheelwright V0",
                                        "  # HOMEPAGE: https://wheelwright.example/ x");
}

std::string Mark() {
  return *rc::gen::element<std::string>("col", "end", "car", "col #", "col  # x", "end #",
                                        "end  # x", "car # x", "colours", "cars", "ending", "Col",
                                        " end", "CAR");
}

std::string AnyLine() {
  switch (*rc::gen::weightedElement<int>({{8, 0}, {8, 1}, {4, 2}, {3, 3}, {2, 4}, {1, 5}})) {
    case 0:
      return ColorLine();
    case 1:
      return VehicleLine();
    case 2:
      return Comment();
    case 3:
      return Mark();
    case 4:
      return *rc::gen::element<std::string>("", "", " ");
    default:
      return WithoutLineEnds(*AnyBytes());
  }
}

std::string TextOfLines(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line + *rc::gen::weightedElement<std::string>({{9, "\r\n"}, {1, "\r"}});
  }
  return text;
}

Texts SomeLines(std::string (*line)(), int most = 6) {
  Texts lines;
  for (int left = *rc::gen::inRange(0, most); left > 0; --left) lines.push_back(line());
  return lines;
}

// Files of a palette and of vehicles, and files without any order.
std::string AnyFile() {
  const std::string stray = TextOfLines(SomeLines(AnyLine, 3));
  if (*rc::gen::inRange(0, 4) == 0) return TextOfLines(SomeLines(AnyLine, 12));
  return stray + "col\r\n" + TextOfLines(SomeLines(ColorLine)) +
         TextOfLines(SomeLines(AnyLine, 2)) + Mark() + "\r\n" + TextOfLines(SomeLines(AnyLine, 3)) +
         "car\r\n" + TextOfLines(SomeLines(VehicleLine)) + TextOfLines(SomeLines(AnyLine, 2)) +
         Mark() + "\r\n";
}

std::string Joined(const Texts& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// A file of one palette and one section of vehicles, laid out as a save lays them out. What lies
// around them is any lines but such that open a section or hold a banner.
struct GoodFile {
  std::string before;
  Texts colors;
  std::string between;
  Texts vehicles;
  std::string behind;

  std::string Text() const {
    return before + "col\r\n" + Joined(colors) + "end\r\n" + between + "car\r\n" +
           Joined(vehicles) + "end\r\n" + behind;
  }
};

std::string ForeignLine() {
  const std::string line = AnyLine();
  const bool isForeign =
      !HoldsBanner(line) && line.substr(0, 3) != "col" && line.substr(0, 3) != "car";
  return isForeign ? line : "text # kept";
}

GoodFile AnyGoodFile() {
  GoodFile file{Joined(SomeLines(ForeignLine)),
                {},
                Joined(SomeLines(ForeignLine)),
                {},
                Joined(SomeLines(ForeignLine))};
  const auto names = *rc::gen::nonEmpty(
      rc::gen::container<Texts>(rc::gen::element<std::string>("oak", "elm", "ASH", "\xFC", "a-b")));
  for (const std::string& name : names) {
    const auto numbers = *rc::gen::element<std::string>("0,0,0\t\t\t\t", "25,25,2\t\t\t\t",
                                                        "25,25,25\t\t\t", "-100,300,32767\t\t\t");
    file.colors.push_back(numbers + "# " + std::to_string(file.colors.size()) + " " + name);
  }
  const auto last = static_cast<int>(names.size());
  for (int vehicles = *rc::gen::inRange(1, 5); vehicles > 0; --vehicles) {
    std::string line = *rc::gen::element<std::string>("bus", "cab", "van", "car");
    for (int pairs = *rc::gen::inRange(1, 4); pairs > 0; --pairs) {
      line += ", " + std::to_string(*rc::gen::inRange(0, last)) + ", " +
              std::to_string(*rc::gen::inRange(0, last));
    }
    file.vehicles.push_back(line);
  }
  return file;
}

bool Opened(TestSession& test, const std::string& text) {
  test.OpenColors(text);
  return test.LastShown() == "normal";
}

std::string Saved(TestSession& test) {
  test.main.cmdSave.ClickByHand();
  return test.Disk(kPath);
}

Texts Sorted(Texts texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

RC_GTEST_PROP(ColorLaws, TheReaderReadsWhatAPlainOneReads, ()) {
  const std::string text = Told(AnyFile());
  TestSession test;
  test.files.contents[kPath] = text;
  test.vars.CurrentFile = kPath;
  test.vars.CurrentFileType = kColorFile;
  std::optional<int> damagedLine;
  const int failure = NumberThrownBy([&] { damagedLine = LoadColorFile(test.session); });
  const PlainColors plain = ReadColorsPlainly(text);
  const bool nothingToChoose = plain.labels.empty() || plain.keys.empty();
  const bool ended = plain.failure == 0 && plain.damagedLine == 0;
  RC_ASSERT(failure == (ended && nothingToChoose ? 380 : plain.failure));
  RC_ASSERT(damagedLine.value_or(0) == plain.damagedLine);
  RC_ASSERT(RecordsOf(test.vars.Kopie_Colors) == plain.colors);
  RC_ASSERT(test.main.lstColors.Rows() == plain.labels);
  RC_ASSERT(test.vars.Colors.IsAllocated() == plain.firstPassEnded);
  if (!plain.firstPassEnded) return;
  RC_ASSERT(RecordsOf(test.vars.Colors) == plain.colors);
  RC_ASSERT(RecordsOf(test.vars.Kopie_CarColors) == plain.carColors);
  if (!ended) return;
  RC_ASSERT(Sorted(test.main.cmbAutos.Rows()) == Sorted(plain.keys));
  RC_ASSERT(test.main.cmbColor1.Rows() == plain.labels);
  RC_ASSERT(test.main.cmbColor2.Rows() == plain.labels);
}

RC_GTEST_PROP(ColorLaws, TheWriterWritesWhatAPlainOneWrites, ()) {
  const std::string text = Told(AnyFile());
  PlainColors tables = ReadColorsPlainly(AnyFile());
  if (*rc::gen::arbitrary<bool>()) tables.colors.back().Index = -1;
  TestSession test;
  test.files.contents[kPath] = text;
  test.vars.CurrentFile = kPath;
  test.vars.Colors = TableOf(tables.colors);
  test.vars.CarColors = TableOf(tables.carColors);
  const std::string written = RewriteColorFile(test.session, kPath);
  const std::string palette = WritePalettePlainly(text, tables.colors);
  RC_ASSERT(test.Disk(kPath) == palette);
  RC_ASSERT(written == WritePairsPlainly(palette, tables.carColors));
}

RC_GTEST_PROP(ColorLaws, AnUneditedSaveAddsTheBannerAndTwoEmptyLinesToAWellLaidOutFile, ()) {
  const std::string text = Told(AnyGoodFile().Text());
  TestSession test;
  RC_ASSERT(Opened(test, text));
  RC_ASSERT(Saved(test) == kBanner + text + "\r\n\r\n");
  RC_ASSERT(Saved(test) == kBanner + text + "\r\n\r\n\r\n\r\n");
}

RC_GTEST_PROP(ColorLaws, ASaveChangesNothingAroundTheSections, ()) {
  GoodFile file = AnyGoodFile();
  TestSession test;
  RC_ASSERT(Opened(test, Told(file.Text())));
  test.main.cmdNewColor.ClickByHand();
  test.main.cmbAutos.ChooseByHand(test.main.cmbAutos.Count() - 1);
  test.main.cmdAddColor.ClickByHand();
  file.colors.push_back("0,128,255\t\t\t# " + std::to_string(file.colors.size()) + " Color" +
                        std::to_string(file.colors.size()));
  file.vehicles[static_cast<std::size_t>(test.vars.CurrentCarColor)] += ", 0, 0";
  RC_ASSERT(Saved(test) == kBanner + file.Text() + "\r\n\r\n");
}

RC_GTEST_PROP(ColorLaws, TheSavedFileGivesTheSameTablesWithTheColorsNumberedAnew, ()) {
  TestSession test;
  RC_ASSERT(Opened(test, Told(AnyGoodFile().Text())));
  test.main.lstColors.ChooseByHand(*rc::gen::inRange(0, test.main.lstColors.Count()));
  test.desktop.answers.push_back(true);
  RC_PRE(test.main.lstColors.Count() > 1);
  test.main.cmdDeleteColor.ClickByHand();
  std::vector<ColorEntry> colors = RecordsOf(test.vars.Colors);
  for (std::size_t i = 0; i < colors.size(); ++i) colors[i].Index = static_cast<std::int16_t>(i);
  const Texts vehicles = TextsOf(test.vars.CarColors);
  RC_ASSERT(Opened(test, Saved(test)));
  RC_ASSERT(RecordsOf(test.vars.Colors) == colors);
  RC_ASSERT(TextsOf(test.vars.Kopie_CarColors) == vehicles);
}

RC_GTEST_PROP(ColorLaws, ASaveKeepsEveryCommentOutsideThePalette, ()) {
  const GoodFile file = AnyGoodFile();
  TestSession test;
  RC_ASSERT(Opened(test, Told(file.Text())));
  const auto commentsOf = [](const std::string& text) {
    Texts comments;
    for (const std::string& line : PlainLines(text)) {
      if (line.find('#') != std::string::npos) comments.push_back(line);
    }
    return comments;
  };
  RC_ASSERT(commentsOf(Saved(test)) == commentsOf(kBanner + file.Text()));
}

}  // namespace
}  // namespace wheelwright::testing
