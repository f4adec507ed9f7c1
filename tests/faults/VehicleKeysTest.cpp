// A name from a file is a name and nothing else: never a path, never a way out of the folder of the
// pictures.
#include "core/DiskFiles.h"
#include "faults/FaultySession.h"
#include "support/TableTexts.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace wheelwright::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

// None holds a blank, a comma or a mark of the formats, so that each comes through as a key.
const std::vector<std::string> kHostileKeys = {"../x",     "/etc/x", "a/b",     "..",       ".",    "\0"s,
                                               "BUS\0"s,   "C:\\x",  "..\\x",   "\\\\h\\s", "~/x",  "$HOME",
                                               "*",        "?",      "con",     "x.bmp\0"s, "<b>x", "&#47etc",
                                               "%2e%2e/x", "file:x", "gfx/BUS", "\xFF",     "x\nb", "-rf"};

// What a key could reach if it were taken as a path.
void PutTraps(FaultyFiles& files) {
  for (const char* path : {"/app/x.bmp", "/app/gfx/../x.bmp", "/etc/x.bmp", "/etc/x.jpg", "/app/gfx/a/b.bmp",
                           "/app/BUS.bmp", "/x.bmp", "/app/..bmp", "/app/.bmp", "/app/gfx/C/x.bmp"}) {
    files.disk.contents[path] = "a trap";
  }
}

// Every call must list the folder or reach for a file directly in it.
void ExpectOnlyPicturesFolder(const std::vector<FileCall>& calls, const std::string& key) {
  EXPECT_FALSE(calls.empty());
  for (const FileCall& call : calls) {
    if (call.operation == Operation::List) {
      EXPECT_EQ(call.path, "/app/gfx");
      continue;
    }
    EXPECT_EQ(call.operation, Operation::Picture);
    EXPECT_EQ(call.path, "/app/gfx/nopictureavailable.jpg") << ::testing::PrintToString(key);
  }
}

// A handling file that is open, with this key as one more entry.
void ShowKey(FaultySession& s, const std::string& key) {
  s.main.cmbAutos.Clear();
  s.main.cmbAutos.AddRow(key);
  s.files.FailAt(0, Fault::None);
  s.Do([&s] { s.main.cmbAutos.ChooseByHand(0); });
}

TEST(VehicleKeysTest, AKeyOfAHandlingFileReachesForNothingOutsideThePictures) {
  FaultySession s;
  PutTraps(s.files);
  s.files.disk.contents["/game/handling.cfg"] = CrLf({VehicleLineOf("BUS")});
  s.Start();
  s.Open("/game/handling.cfg", 1);
  for (const std::string& key : kHostileKeys) {
    ShowKey(s, key);
    ExpectOnlyPicturesFolder(s.files.calls, key);
  }
}

TEST(VehicleKeysTest, AKeyOfADefinitionFileReachesForNothingOutsideThePictures) {
  FaultySession s;
  PutTraps(s.files);
  s.files.disk.contents["/game/default.ide"] =
      CrLf({"cars", "130, bus, bus, boat, BUS, BUS, null, normal, 30, 7, 0", "end"});
  s.Start();
  s.Open("/game/default.ide", 2);
  for (const std::string& key : kHostileKeys) {
    ShowKey(s, key);
    ExpectOnlyPicturesFolder(s.files.calls, key);
  }
}

TEST(VehicleKeysTest, AFilesOwnKeysComeFromItsLinesAsTheyAre) {
  for (const std::string& key : kHostileKeys) {
    if (key.find_first_of("$%\n") != std::string::npos) continue;
    FaultySession s;
    PutTraps(s.files);
    s.files.disk.contents["/game/handling.cfg"] = CrLf({VehicleLineOf(key)});
    s.Start();
    s.files.FailAt(0, Fault::None);
    s.Open("/game/handling.cfg", 1);
    EXPECT_EQ(s.main.cmbAutos.Rows(), Texts{key});
    Texts paths;
    for (const FileCall& call : s.files.calls) paths.push_back(call.path);
    EXPECT_EQ(paths, (Texts{"", "/game/handling.cfg", "/game/handling.cfg", "/app/gfx",
                            "/app/gfx/nopictureavailable.jpg"}));
    s.Click(s.main.cmdSave);
    EXPECT_EQ(s.files.calls.back().path, "/game/handling.cfg");
  }
}

TEST(VehicleKeysTest, AKeyIsCutByNoZeroByteOnARealDisk) {
  const fs::path folder = fs::temp_directory_path() / ("keys-" + std::to_string(std::random_device{}()));
  fs::create_directories(folder / "gfx");
  DiskFiles files;
  files.Write((folder / "gfx/BUS").string(), "a trap");
  files.Write((folder / "gfx/BUS.bmp").string(), "the picture of BUS alone");
  files.Write((folder / "Deutsch.lng").string(), LanguageTextOf('E'));
  files.Write((folder / "in.cfg").string(), CrLf({VehicleLineOf("BUS\0"s), VehicleLineOf("BUS")}));
  FakeDesktop desktop;
  desktop.pictures[(folder / "gfx/BUS.bmp").string()] = {4, 4};
  EdgedSession s(desktop, files);
  s.Start(folder.string());
  s.Open((folder / "in.cfg").string(), 1);
  EXPECT_EQ(s.main.cmbAutos.Rows(), (Texts{"BUS", "BUS\0"s}));
  s.main.cmbAutos.ChooseByHand(0);
  EXPECT_EQ(s.main.picCar.File(), (folder / "gfx/BUS.bmp").string());
  s.main.cmbAutos.ChooseByHand(1);
  EXPECT_EQ(s.main.picCar.File(), "");
  fs::remove_all(folder);
}

TEST(VehicleKeysTest, AStoredLanguageIsARowOrAFailureAndNeverAPath) {
  for (const std::string& language : {"../x"s, "/etc/x"s, "a/b"s, ".."s, ""s, "Deutsch\0"s}) {
    FaultySession s;
    s.files.disk.contents["/x.lng"] = "a trap\r\n";
    s.files.disk.contents["/etc/x.lng"] = "a trap\r\n";
    s.files.disk.contents["/app/a/b.lng"] = "a trap\r\n";
    s.settings.values[{"Settings", "Language"}] = language;
    s.Start();
    EXPECT_EQ(s.desktop.shown, Texts{"ends with 380"});
    ASSERT_EQ(s.files.calls.size(), 1U);
    EXPECT_EQ(s.files.calls.front().operation, Operation::List);
  }
}

}  // namespace
}  // namespace wheelwright::testing
