// The check for translators finds captions that are too wide.
#include "core/DiskFiles.h"
#include "languages/Report.h"
#include "languages/RoomFaults.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

std::string ReportWith(std::size_t entry, const std::string& text) {
  std::vector<std::string> entries =
      languages::EntriesOf(DiskFiles().Read(WHEELWRIGHT_SOURCE_DIR "/language/English.lng"));
  entries[entry] = text;
  return languages::ReportOf("X.lng", languages::RoomFaults(entries));
}

TEST(CaptionRoom, AFieldThatIsCutOffAmongTheLoadProblemsIsTold) {
  for (const std::size_t field : {17u, 169u}) {
    const std::string report = ReportWith(field, "A weight of very many &kilogrammes");
    EXPECT_TRUE(report.starts_with("X.lng: entry " + std::to_string(field) + " (line "));
    EXPECT_NE(report.find("where the window of load problems has room for"), std::string::npos) << report;
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 1);
  }
}

TEST(CaptionRoom, AProblemThatIsCutOffIsTold) {
  for (const std::size_t problem : {102u, 104u, 105u, 107u, 108u, 109u}) {
    const std::string report = ReportWith(problem, "These words are so many that no column has room");
    EXPECT_TRUE(report.starts_with("X.lng: entry " + std::to_string(problem) + " (line ")) << report;
  }
  EXPECT_EQ(ReportWith(12, "These words are so many that no column has room for all of them"),
            "X.lng: all is well\n");
}

TEST(CaptionRoom, AHeadOfAColumnThatIsCutOffInAFontOfTwiceTheSizeIsTold) {
  const std::string report = ReportWith(107,
                                        "Veh\xED"
                                        "culo");
  EXPECT_TRUE(report.starts_with("X.lng: entry 107 (line 108, frmError.lstErrors) is ")) << report;
  EXPECT_TRUE(
      report.ends_with(" pixels wide in a font of twice the size, where its column has "
                       "room for 100; shorten it\n"))
      << report;
}

TEST(CaptionRoom, CaptionsThatMakeTheMainWindowTooWideAreTold) {
  const std::string report = ReportWith(8, std::string(60, 'M'));
  EXPECT_TRUE(report.starts_with("X.lng: makes the main window ")) << report;
  EXPECT_TRUE(
      report.ends_with(" pixels wide, 1024 are the most; shorten one or more of the "
                       "entries 8\n"))
      << report;
}

TEST(CaptionRoom, TabsMakeTheMainWindowWideTogether) {
  const std::string report = ReportWith(4, "Engine && drive, traction, all gears and the speed");
  EXPECT_NE(report.find("one or more of the entries 2, 3, 4, 5, 6, 7, 62, 64\n"), std::string::npos)
      << report;
}

}  // namespace
}  // namespace wheelwright::testing
