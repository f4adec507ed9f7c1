// The picture of a vehicle: which file, and where in its frame.
#include "editor/VehiclePicture.h"
#include "support/HeldTables.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

class VehiclePicture : public ::testing::Test {
 protected:
  void AddPicture(const std::string& file, int width, int height) {
    s.files.contents[file] = "picture";
    s.desktop.pictures[file] = {width, height};
  }
  void AddUnreadable(const std::string& file) { s.files.contents[file] = "no picture"; }
  void Show(const std::string& key) { ShowVehiclePicture(s.session, key, image); }

  void ExpectPlace(double left, double top) {
    EXPECT_EQ(image.Left(), left);
    EXPECT_EQ(image.Top(), top);
  }
  void ExpectCleared() {
    EXPECT_EQ(image.File(), "");
    EXPECT_EQ(image.Width(), 0);
    EXPECT_EQ(image.Height(), 0);
  }

  TestSession s;
  Picture& image = s.main.picCar;
};

TEST_F(VehiclePicture, ABitmapBeatsAJpeg) {
  AddPicture("/app/gfx/BUS.bmp", 20, 10);
  AddPicture("/app/gfx/BUS.jpg", 40, 30);
  AddPicture("/app/gfx/nopictureavailable.jpg", 2, 2);
  Show("BUS");
  EXPECT_EQ(image.File(), "/app/gfx/BUS.bmp");
  EXPECT_EQ(image.Width(), 20);
  EXPECT_EQ(image.Height(), 10);
}

TEST_F(VehiclePicture, AJpegIsTakenWithoutABitmap) {
  AddPicture("/app/gfx/BUS.jpg", 40, 30);
  AddPicture("/app/gfx/nopictureavailable.jpg", 2, 2);
  Show("BUS");
  EXPECT_EQ(image.File(), "/app/gfx/BUS.jpg");
  EXPECT_EQ(image.Width(), 40);
}

TEST_F(VehiclePicture, AVehicleWithoutFilesShowsTheFallbackCentred) {
  AddPicture("/app/gfx/nopictureavailable.jpg", 100, 50);
  AddPicture("/app/gfx/nopictureavailable.bmp", 9, 9);
  AddPicture("/app/gfx/BUSX.bmp", 9, 9);
  Show("BUS");
  EXPECT_EQ(image.File(), "/app/gfx/nopictureavailable.jpg");
  ExpectPlace(160, 125);
}

TEST_F(VehiclePicture, IsCentredInItsFrameInHalfPixels) {
  AddPicture("/app/gfx/BUS.bmp", 101, 51);
  Show("BUS");
  ExpectPlace(159.5, 124.5);
}

TEST_F(VehiclePicture, ALargePictureIsCutOnAllFourSides) {
  AddPicture("/app/gfx/BUS.bmp", 800, 601);
  Show("BUS");
  ExpectPlace(-190, -150.5);
  EXPECT_EQ(image.Width(), 800);
  EXPECT_EQ(image.Height(), 601);
}

TEST_F(VehiclePicture, WithoutAnyFileTheImageIsEmptyAndStaysWhereItWas) {
  AddPicture("/app/gfx/BUS.bmp", 20, 10);
  Show("BUS");
  Show("TAXI");
  ExpectCleared();
  ExpectPlace(200, 145);
}

TEST_F(VehiclePicture, WithoutTheFolderThereIsNoPicture) {
  Show("BUS");
  ExpectCleared();
  ExpectPlace(0, 0);
}

TEST_F(VehiclePicture, AFileThatIsNoPictureShowsAsNone) {
  AddPicture("/app/gfx/TAXI.bmp", 20, 10);
  AddUnreadable("/app/gfx/BUS.bmp");
  AddPicture("/app/gfx/BUS.jpg", 40, 30);
  Show("TAXI");
  Show("BUS");
  ExpectCleared();
  ExpectPlace(200, 145);
}

TEST_F(VehiclePicture, TheDisplayGoesOnBehindAFileThatIsNoPicture) {
  AddUnreadable("/app/gfx/AXO.bmp");
  HoldCars(s, {TaggedCar("AXO", "a")});
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.main.txtPreis.Text(), "MonetaryValue a");
  EXPECT_TRUE(s.desktop.shown.empty());
}

TEST_F(VehiclePicture, NamesAreMatchedIgnoringCase) {
  AddPicture("/app/gfx/Bus.BMP", 20, 10);
  AddPicture("/app/gfx/NoPictureAvailable.JPG", 2, 2);
  Show("bUS");
  EXPECT_EQ(image.File(), "/app/gfx/Bus.BMP");
  Show("TAXI");
  EXPECT_EQ(image.File(), "/app/gfx/NoPictureAvailable.JPG");
}

TEST_F(VehiclePicture, TheVeryNameIsPreferredToOneOfOtherCase) {
  AddPicture("/app/gfx/BUS.bmp", 1, 1);
  AddPicture("/app/gfx/Bus.bmp", 2, 2);
  AddPicture("/app/gfx/bus.bmp", 3, 3);
  Show("Bus");
  EXPECT_EQ(image.File(), "/app/gfx/Bus.bmp");
}

TEST_F(VehiclePicture, AKeyIsMatchedToNamesByTheLettersOfTheCodePage) {
  AddPicture("/app/gfx/M\xC3\x9CLL.bmp", 20, 10);
  Show("M\xFCll");
  EXPECT_EQ(image.File(), "/app/gfx/M\xC3\x9CLL.bmp");
}

TEST_F(VehiclePicture, AKeyNeverReachesOutsideTheFolder) {
  AddPicture("/app/secret.bmp", 20, 10);
  AddPicture("/app/gfx/sub/BUS.bmp", 20, 10);
  AddPicture("/app/gfx/nopictureavailable.jpg", 2, 2);
  for (const char* key : {"../secret", "sub/BUS", "/app/secret", ""}) {
    Show(key);
    EXPECT_EQ(image.File(), "/app/gfx/nopictureavailable.jpg") << key;
  }
}

TEST_F(VehiclePicture, TheFolderLiesBesideTheProgram) {
  AddPicture("/app/gfx/BUS.bmp", 20, 10);
  AddPicture("/other place/gfx/BUS.bmp", 30, 10);
  s.vars.AppPath = "/other place/";
  Show("BUS");
  EXPECT_EQ(image.File(), "/other place/gfx/BUS.bmp");
}

TEST_F(VehiclePicture, EachKindOfFileHasItsOwnImage) {
  AddPicture("/app/gfx/AXO.bmp", 20, 10);
  AddPicture("/app/gfx/BYL.jpg", 40, 30);
  HoldCars(s, {TaggedCar("AXO", "a")});
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.main.picCar.File(), "/app/gfx/AXO.bmp");
  EXPECT_EQ(s.main.picCar2.File(), "");
  HoldIdes(s, {TaggedIde("BYL", "b")});
  s.main.cmbAutos.Choose(0);
  EXPECT_EQ(s.main.picCar.File(), "/app/gfx/AXO.bmp");
  EXPECT_EQ(s.main.picCar2.File(), "/app/gfx/BYL.jpg");
  EXPECT_EQ(s.main.picCar2.Left(), 190);
  EXPECT_EQ(s.main.picCar2.Top(), 135);
}

}  // namespace
}  // namespace wheelwright::testing
