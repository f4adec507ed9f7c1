// Every command that writes, on a disk without room: what lay there lies there as it was.
#ifdef __linux__
#include "core/DiskFiles.h"
#include "faults/TinyDisk.h"
#include "support/EdgedSession.h"
#include "support/Exchange.h"
#include "support/HeldTables.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <map>
#include <random>

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;

using Texts = std::vector<std::string>;

class FullDiskTest : public ::testing::TestWithParam<TinyKind> {
 protected:
  FullDiskTest() {
    fs::create_directories(folder_ / "tiny");
    disk.emplace(In(""), GetParam());
    if (GetParam() == TinyKind::FileSystem && !disk->IsMounted()) {
      std::cout << "nothing can be mounted here; a limit on file sizes stands in\n";
    }
    files.Write((folder_ / "Deutsch.lng").string(), LanguageTextOf('E'));
    s.Start(folder_.string());
  }
  ~FullDiskTest() override {
    disk.reset();
    fs::remove_all(folder_);
  }

  std::string In(const std::string& name) const { return (folder_ / "tiny" / name).string(); }

  // Fills the disk and does what must fail.
  void ExpectNothingChanged(const std::function<void()>& command, const Texts& shown) {
    desktop.shown.clear();
    disk->Fill();
    const auto before = Contents();
    command();
    EXPECT_EQ(desktop.shown, shown);
    EXPECT_TRUE(Contents() == before);
  }

  std::map<std::string, std::string> Contents() const {
    std::map<std::string, std::string> contents;
    for (const auto& entry : fs::directory_iterator(In(""))) {
      std::ifstream file(entry.path(), std::ios::binary);
      contents[entry.path().string()] = {std::istreambuf_iterator<char>(file), {}};
    }
    return contents;
  }

  void OpenHandling(const std::string& text) {
    files.Write(In("handling.cfg"), text);
    s.Open(In("handling.cfg"), 1);
  }

  // What is written then has no room on a page.
  void OpenHandlingAndEdit() {
    OpenHandling(CrLf({"; Author: Ann", VehicleLineOf("BUS", "8")}));
    s.main.txtAuthor.SetText(std::string(TinyDisk::kPage, 'A'));
  }

  // A first run that fits, and a second that is one byte longer than a page.
  void OpenColorsAndEdit() {
    const std::string head =
        "# File created with Wheelwright V1.0.0\r\n"
        "# Homepage: https://wheelwright.example/\r\n";
    const std::string sections = CrLf({"col", "1,1,1\t\t\t\t# 0 oak", "end", "car", "bus, 0, 0", "end"});
    const std::size_t saved = head.size() + sections.size() + std::string("# \r\n\r\n\r\n").size();
    const std::string comment = "# " + std::string(TinyDisk::kPage + 1 - saved, 'x') + "\r\n";
    files.Write(In("carcols.dat"), comment + sections);
    s.Open(In("carcols.dat"), 3);
    s.main.lstColors.ChooseByHand(0);
    s.main.HScroll1.MoveByHand(9);
  }

  void ChooseForExport() {
    s.main.cmdExportCar.ClickByHand();
    s.exporter.cmdAddAll.ClickByHand();
  }

  fs::path folder_ = fs::temp_directory_path() / ("full-" + std::to_string(std::random_device{}()));
  std::optional<TinyDisk> disk;
  DiskFiles files;
  FakeDesktop desktop;
  EdgedSession s{desktop, files};
};

const Texts kRefused = {"save", "error: Error: 61 - Disk full"};

TEST_P(FullDiskTest, Save) {
  OpenHandlingAndEdit();
  ExpectNothingChanged([this] { s.Click(s.main.cmdSave); }, {"ends with 61"});
}

TEST_P(FullDiskTest, SaveAs) {
  OpenHandlingAndEdit();
  files.Write(In("earlier.cfg"), "an earlier copy");
  s.Choose(In("earlier.cfg"));
  ExpectNothingChanged([this] { s.Click(s.main.cmdSaveAs); }, kRefused);
}

TEST_P(FullDiskTest, SaveAsIntoANewFile) {
  OpenHandlingAndEdit();
  s.Choose(In("new.cfg"));
  ExpectNothingChanged([this] { s.Click(s.main.cmdSaveAs); }, kRefused);
}

TEST_P(FullDiskTest, SaveOfColors) {
  OpenColorsAndEdit();
  ExpectNothingChanged([this] { s.Click(s.main.cmdSave); }, {"ends with 61"});
}

TEST_P(FullDiskTest, SaveOfColorsAs) {
  OpenColorsAndEdit();
  s.Choose(In("new.dat"));
  ExpectNothingChanged([this] { s.Click(s.main.cmdSaveAs); }, kRefused);
}

TEST_P(FullDiskTest, Backup) {
  OpenHandling("; " + std::string(TinyDisk::kPage, 'x') + "\r\n" + VehicleLineOf("BUS") + "\r\n");
  files.Write(In("handling.cfg.backup"), "an earlier backup");
  s.Answer(true);
  ExpectNothingChanged([this] { s.Click(s.main.cmdBackup); },
                       {"yesno: E061", "error: Error: 61 - Disk full"});
}

TEST_P(FullDiskTest, FirstBackup) {
  OpenHandling("; " + std::string(TinyDisk::kPage, 'x') + "\r\n" + VehicleLineOf("BUS") + "\r\n");
  ExpectNothingChanged([this] { s.Click(s.main.cmdBackup); }, {"error: Error: 61 - Disk full"});
}

TEST_P(FullDiskTest, Export) {
  OpenHandlingAndEdit();
  ChooseForExport();
  files.Write(In("earlier.cfg"), "an earlier export");
  s.Choose(In("earlier.cfg"));
  ExpectNothingChanged([this] { s.Click(s.exporter.cmdExport); }, kRefused);
  EXPECT_TRUE(s.exporter.IsVisible());
}

TEST_P(FullDiskTest, TuningList) {
  std::string text;
  for (int car = 0; car < 20; ++car) text += VehicleLineOf("BUS" + std::to_string(car)) + "\r\n";
  OpenHandling(text);
  ChooseForExport();
  files.Write(In("earlier.cfg"), "an earlier list");
  s.Choose(In("earlier.cfg"));
  ExpectNothingChanged([this] { s.Click(s.exporter.Spez); }, {"save", "ends with 61"});
}

TEST_P(FullDiskTest, OpeningAFileWithBareLineFeeds) {
  std::string text = VehicleLineOf("BUS") + "\n";
  text += "; " + std::string(TinyDisk::kPage - text.size() - 3, 'x') + "\n";
  files.Write(In("handling.cfg"), text);
  ExpectNothingChanged([this] { s.Open(In("handling.cfg"), 1); },
                       {"open", "hourglass", "normal", "error: Error: 61 - Disk full"});
}

INSTANTIATE_TEST_SUITE_P(Both, FullDiskTest, ::testing::Values(TinyKind::FileSystem, TinyKind::Limit),
                         [](const auto& kind) {
                           return kind.param == TinyKind::FileSystem ? "AFileSystem" : "ALimit";
                         });

}  // namespace
}  // namespace wheelwright::testing
#endif
