// Whole commands on the real disk, where a machine has the faults: pipes and devices, memory that
// can't be read, links, modes, files that nobody may write.
#ifdef __linux__
#include "core/DiskFiles.h"
#include "faults/SystemFault.h"
#include "faults/TinyDisk.h"
#include "support/EdgedSession.h"
#include "support/Exchange.h"
#include "support/TableTexts.h"
#include "support/Thrown.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

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

  unsigned ModeOf(const std::string& name) const {
    return static_cast<unsigned>(fs::status(In(name)).permissions());
  }

  std::vector<std::string> MakeThingsThatAreNoFiles() const {
    mkfifo(In("pipe").c_str(), 0600);
    sockaddr_un address{AF_UNIX, {}};
    const int socketNumber = socket(AF_UNIX, SOCK_STREAM, 0);
    In("socket").copy(address.sun_path, sizeof address.sun_path - 1);
    bind(socketNumber, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    close(socketNumber);
    fs::create_symlink("/dev/full", In("link to a device"));
    return {In("pipe"), In("socket"), In("link to a device"), "/dev/full", "/dev/zero"};
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
  fs::path folder_ = fs::temp_directory_path() / ("faults-" + std::to_string(std::random_device{}()));
  DiskFiles files;
  FakeDesktop desktop;
  EdgedSession s{desktop, files};
};

TEST_F(RealDiskTest, WhatIsNoFileIsRefusedWhereverAFileIsAskedFor) {
  OpenAndEdit();
  for (const std::string& path : MakeThingsThatAreNoFiles()) {
    EXPECT_EQ(NumberThrownBy([&] { files.Read(path); }), 75) << path;
    EXPECT_EQ(NumberThrownBy([&] { files.Write(path, "x"); }), 75) << path;
    EXPECT_EQ(NumberThrownBy([&] { files.Copy(In("handling.cfg"), path); }), 75) << path;
    s.Choose(path);
    s.Click(s.main.cmdSaveAs);
    EXPECT_EQ(desktop.shown.back(), "error: Error: 75 - Path/File access error") << path;
    ExpectState("7", "7", false, In("handling.cfg"));
    EXPECT_FALSE(fs::is_regular_file(path));
  }
}

TEST_F(RealDiskTest, NobodyWaitsForAPipeInTheOpenFilesPlace) {
  OpenAndEdit();
  fs::remove(In("handling.cfg"));
  mkfifo(In("handling.cfg").c_str(), 0600);
  s.Click(s.main.cmdBackup);
  EXPECT_EQ(desktop.shown.back(), "error: Error: 75 - Path/File access error");
  s.Click(s.main.cmdSave);
  EXPECT_EQ(desktop.shown.back(), "ends with 75");
}

TEST_F(RealDiskTest, APipeInALanguageFilesPlaceEndsTheProgram) {
  mkfifo(In("English.lng").c_str(), 0600);
  s.Start(folder_.string());
  desktop.shown.clear();
  s.Do([&] { s.main.cmbSprache.ChooseByHand(1); });
  EXPECT_EQ(desktop.shown, (Texts{"ends with 75"}));
}

// To open a pipe would already let go on whoever waits at its other end.
TEST_F(RealDiskTest, APipeIsNotEvenOpened) {
  mkfifo(In("pipe").c_str(), 0600);
  const int events = inotify_init1(IN_NONBLOCK);
  inotify_add_watch(events, In("pipe").c_str(), IN_OPEN);
  EXPECT_EQ(NumberThrownBy([&] { files.Read(In("pipe")); }), 75);
  EXPECT_EQ(NumberThrownBy([&] { files.Write(In("pipe"), "x"); }), 75);
  inotify_event event{};
  EXPECT_EQ(read(events, &event, sizeof event), -1);
  close(events);
}

TEST(RealDiskDeathTest, ALimitOnSizesAndABrokenPipeEndNoProgram) {
  const auto survive = [] {
    LetWritesFail();
    std::raise(SIGXFSZ);
    std::raise(SIGPIPE);
    std::exit(0);
  };
  EXPECT_EXIT(survive(), ::testing::ExitedWithCode(0), "");
}

TEST_F(RealDiskTest, LinksOwnerAndModeStay) {
  OpenAndEdit();
  fs::permissions(In("handling.cfg"), fs::perms(0604));
  fs::create_hard_link(In("handling.cfg"), In("second name"));
  fs::create_symlink("handling.cfg", In("link"));
  struct stat before {};
  stat(In("handling.cfg").c_str(), &before);
  files.Write(In("link"), "longer than before: " + kText);
  struct stat after {};
  stat(In("handling.cfg").c_str(), &after);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_TRUE(fs::is_symlink(In("link")));
  EXPECT_EQ(files.Read(In("second name")), "longer than before: " + kText);
}

TEST_F(RealDiskTest, ANewFileThroughALinkLiesWhereTheLinkLeads) {
  fs::create_directory(In("elsewhere"));
  fs::create_symlink("elsewhere/new.cfg", In("link"));
  files.Write(In("link"), "x");
  EXPECT_TRUE(fs::is_symlink(In("link")));
  EXPECT_EQ(files.Read(In("elsewhere/new.cfg")), "x");
}

TEST_F(RealDiskTest, ANewBackupHasTheModeOfItsModelWhateverTheMask) {
  OpenAndEdit();
  const mode_t mask = umask(077);
  for (const unsigned mode : {0600U, 0640U, 0604U, 0666U, 0400U, 0777U}) {
    fs::permissions(In("handling.cfg"), fs::perms(mode));
    s.Click(s.main.cmdBackup);
    EXPECT_EQ(ModeOf("handling.cfg.backup"), mode | 0200U);
    fs::remove(In("handling.cfg.backup"));
  }
  umask(mask);
}

TEST_F(RealDiskTest, AnEarlierBackupIsNoMoreOpenThanItsModel) {
  OpenAndEdit();
  files.Write(In("handling.cfg.backup"), "an earlier backup");
  fs::permissions(In("handling.cfg.backup"), fs::perms(0654));
  fs::permissions(In("handling.cfg"), fs::perms(0640));
  s.Answer(true);
  s.Click(s.main.cmdBackup);
  EXPECT_EQ(ModeOf("handling.cfg.backup"), 0640U);
  EXPECT_EQ(files.Read(In("handling.cfg.backup")), files.Read(In("handling.cfg")));
}

TEST_F(RealDiskTest, AFileMayBeAsLargeAsTheLimitOfTheProcess) {
  TinyDisk limit(In(""), TinyKind::Limit);
  limit.Fill();
  const std::string text(TinyDisk::kPage, 'x');
  files.Write(In("new.cfg"), text);
  EXPECT_EQ(files.Read(In("new.cfg")), text);
  EXPECT_EQ(NumberThrownBy([&] { files.Write(In("new.cfg"), text + "x"); }), 61);
}

TEST_F(RealDiskTest, SaveAsNeedsNoTemplateThatCanBeChanged) {
  OpenAndEdit();
  MakeReadOnly(In("handling.cfg"));
  const SystemFault fault(SystemCall::Fchmodat, EPERM);
  s.Choose(In("copy.cfg"));
  s.Click(s.main.cmdSaveAs);
  EXPECT_EQ(desktop.shown.back(), "information: E116");
  EXPECT_EQ(files.Read(In("handling.cfg")), kText);
}

TEST_F(RealDiskTest, AFileThatFailsWhileItIsReadResetsTheWindow) {
  fs::create_symlink("/proc/self/mem", In("memory.cfg"));
  OpenAndEdit();
  s.Answer(true);
  s.Open(In("memory.cfg"), 1);
  EXPECT_EQ(desktop.shown,
            (Texts{"question: E118", "open", "hourglass", "normal", "error: Error: 57 - Device I/O error"}));
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
    const SystemFault fault(SystemCall::Close, EIO);
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
