// Whole commands on the real disk, where a machine has the faults: a device that is always full, a
// file system of a few pages, memory that can't be read, files that nobody may write.
#ifdef __linux__
#include "core/DiskFiles.h"
#include "faults/CloseFault.h"
#include "faults/TinyDisk.h"
#include "support/EdgedSession.h"
#include "support/Exchange.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <random>

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;

class RealDiskTest : public ::testing::Test {
 protected:
  RealDiskTest() {
    fs::create_directory(folder_);
    files.Write(In("Deutsch.lng"), LanguageTextOf('E'));
    s.Start(folder_.string());
  }
  ~RealDiskTest() override { fs::remove_all(folder_); }

  std::string In(const std::string& name) const { return folder_.string() + "/" + name; }

  void MakeReadOnly(const std::string& path) const {
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  }

  // Opens BUS of 8 in handling.cfg and makes it 7.
  void OpenAndEdit() {
    files.Write(In("handling.cfg"), kText);
    s.Open(In("handling.cfg"), 1);
    s.main.txtGewicht.EditByHand("7");
    desktop.shown.clear();
  }

  void ExpectState(const std::string& mass, const std::string& snapshot, bool isSaved,
                   const std::string& file) {
    EXPECT_EQ(s.vars.Cars.At(0).Mass, mass);
    EXPECT_EQ(s.vars.Kopie_Cars.At(0).Mass, snapshot);
    EXPECT_EQ(s.vars.IsSaved, isSaved);
    EXPECT_EQ(s.vars.CurrentFile, file);
  }

  const std::string kText = CrLf({"; Author: Ann", VehicleLineOf("BUS", "8")});
  fs::path folder_ =
      fs::temp_directory_path() / ("faults-" + std::to_string(std::random_device{}()));
  DiskFiles files;
  FakeDesktop desktop;
  EdgedSession s{desktop, files};
};

TEST_F(RealDiskTest, SaveAsOntoAFullDeviceShows61AndTheSessionGoesOn) {
  OpenAndEdit();
  s.Choose("/dev/full");
  s.Click(s.main.cmdSaveAs);
  EXPECT_EQ(desktop.shown, (Texts{"save", "error: Error: 61 - Disk full"}));
  ExpectState("7", "7", false, In("handling.cfg"));
  EXPECT_EQ(files.Read(In("handling.cfg")), kText);
  s.Click(s.main.cmdSave);
  EXPECT_EQ(desktop.shown.back(), "information: E116");
  ExpectState("7", "7", true, In("handling.cfg"));
}

TEST_F(RealDiskTest, ExportOntoAFullDeviceShows61AndKeepsTheWindow) {
  OpenAndEdit();
  s.main.cmdExportCar.ClickByHand();
  s.exporter.cmdAddAll.ClickByHand();
  s.Choose("/dev/full");
  s.Click(s.exporter.cmdExport);
  EXPECT_EQ(desktop.shown, (Texts{"save", "error: Error: 61 - Disk full"}));
  EXPECT_TRUE(s.exporter.IsVisible());
  EXPECT_EQ(s.exporter.lst2.Rows(), (Texts{"BUS"}));
}

TEST_F(RealDiskTest, ABackupOntoAFullDeviceShows61) {
  OpenAndEdit();
  fs::create_symlink("/dev/full", In("handling.cfg.backup"));
  s.Answer(true);
  s.Click(s.main.cmdBackup);
  EXPECT_EQ(desktop.shown, (Texts{"yesno: E061", "error: Error: 61 - Disk full"}));
  ExpectState("7", "8", false, In("handling.cfg"));
}

TEST_F(RealDiskTest, TheTuningListOntoAFullDeviceEndsTheProgram) {
  OpenAndEdit();
  s.main.cmdExportCar.ClickByHand();
  s.exporter.cmdAddAll.ClickByHand();
  s.Choose("/dev/full");
  s.Click(s.exporter.Spez);
  EXPECT_EQ(desktop.shown, (Texts{"save", "ends with 61"}));
}

TEST_F(RealDiskTest, ASaveThatOutgrowsTheDiskEndsTheProgram) {
  fs::create_directory(In("tiny"));
  TinyDisk disk(In("tiny"));
  std::cout << "the disk that runs full is " << disk.Kind() << "\n";
  files.Write(In("tiny/handling.cfg"), kText);
  s.Open(In("tiny/handling.cfg"), 1);
  s.main.txtAuthor.SetText(std::string(3 * TinyDisk::kSize, 'A'));
  desktop.shown.clear();
  disk.Fill();
  s.Click(s.main.cmdSave);
  EXPECT_EQ(desktop.shown, (Texts{"ends with 61"}));
  EXPECT_FALSE(s.vars.IsSaved);
  const std::string left = files.Read(In("tiny/handling.cfg"));
  EXPECT_LE(left.size(), TinyDisk::kSize);
  EXPECT_TRUE(left.empty() || left.starts_with("; File created with Wheelwright V1.0.0\r\n"));
  s.Click(s.main.cmdSave);
  EXPECT_EQ(desktop.shown, (Texts{"ends with 61"})) << "an ended program takes no more events";
}

TEST_F(RealDiskTest, ABackupThatOutgrowsTheDiskIsCutShortAndTheFileStaysWhole) {
  fs::create_directory(In("tiny"));
  TinyDisk disk(In("tiny"));
  const std::string large = kText + "; " + std::string(3 * TinyDisk::kSize, 'x') + "\r\n";
  files.Write(In("handling.cfg"), large);
  s.Open(In("handling.cfg"), 1);
  desktop.shown.clear();
  fs::create_symlink(In("tiny/backup"), In("handling.cfg.backup"));
  disk.Fill();
  s.Click(s.main.cmdBackup);
  EXPECT_EQ(desktop.shown, (Texts{"error: Error: 61 - Disk full"}));
  EXPECT_EQ(files.Read(In("handling.cfg")), large);
  EXPECT_LE(files.Read(In("tiny/backup")).size(), TinyDisk::kSize);
}

TEST_F(RealDiskTest, AFileThatFailsWhileItIsReadResetsTheWindow) {
  fs::create_symlink("/proc/self/mem", In("memory.cfg"));
  OpenAndEdit();
  s.Answer(true);
  s.Open(In("memory.cfg"), 1);
  EXPECT_EQ(desktop.shown, (Texts{"question: E118", "open", "hourglass", "normal",
                                  "error: Error: 57 - Device I/O error"}));
  ExpectState("7", "8", true, "");
  EXPECT_FALSE(s.main.cmdSave.IsEnabled());
}

TEST_F(RealDiskTest, AFileThatFailsWhileItIsWrittenIsFailure57) {
  EXPECT_EQ(NumberThrownBy([&] { files.Write("/proc/self/mem", "x"); }), 57);
}

TEST_F(RealDiskTest, ALanguageFileThatFailsWhileItIsReadEndsTheProgram) {
  fs::create_symlink("/proc/self/mem", In("English.lng"));
  s.Start(folder_.string());
  desktop.shown.clear();
  s.Do([&] { s.main.cmbSprache.ChooseByHand(1); });
  EXPECT_EQ(desktop.shown, (Texts{"ends with 57"}));
  EXPECT_EQ(s.settings.Get("Settings", "Language"), "Deutsch");
}

TEST_F(RealDiskTest, AReadOnlyFileWithBareLineFeedsStaysAsItIs) {
  const std::string text = "; Author: Ann\n" + VehicleLineOf("BUS", "8") + "\n";
  files.Write(In("handling.cfg"), text);
  MakeReadOnly(In("handling.cfg"));
  s.Open(In("handling.cfg"), 1);
  EXPECT_EQ(desktop.shown,
            (Texts{"open", "hourglass", "normal", "error: Error: 75 - Path/File access error"}));
  EXPECT_EQ(files.Read(In("handling.cfg")), text);
}

TEST_F(RealDiskTest, SaveWritesIntoAReadOnlyFileAndSaveAsDoesNot) {
  OpenAndEdit();
  files.Write(In("copy.cfg"), "an earlier copy");
  MakeReadOnly(In("copy.cfg"));
  MakeReadOnly(In("handling.cfg"));
  s.Choose(In("copy.cfg"));
  s.Click(s.main.cmdSaveAs);
  EXPECT_EQ(desktop.shown, (Texts{"save", "error: Error: 75 - Path/File access error"}));
  EXPECT_EQ(files.Read(In("copy.cfg")), "an earlier copy");
  s.Click(s.main.cmdSave);
  EXPECT_EQ(desktop.shown.back(), "information: E116");
  EXPECT_NE(files.Read(In("handling.cfg")), kText);
}

TEST_F(RealDiskTest, AFaultThatOnlyTheCloseTellsOfIsSeen) {
  OpenAndEdit();
  {
    const CloseFault fault;
    s.Choose(In("copy.cfg"));
    s.Click(s.main.cmdSaveAs);
    EXPECT_EQ(desktop.shown, (Texts{"save", "error: Error: 57 - Device I/O error"}));
    ExpectState("7", "7", false, In("handling.cfg"));
    s.Click(s.main.cmdSave);
  }
  EXPECT_EQ(desktop.shown.back(), "ends with 57");
  EXPECT_FALSE(s.vars.IsSaved);
}

}  // namespace
}  // namespace wheelwright::testing
#endif
