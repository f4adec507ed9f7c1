// What pictures and swatches paint.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/system/QtPorts.h"
#include "forms/qt/widgets/Pictures.h"
#include "forms/qt/widgets/Swatches.h"
#include "screen/MainWindow.h"

#include <sys/stat.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtEndian>

namespace wheelwright::testing {
namespace {

// A picture of which every pixel tells where it belongs.
QImage Grid(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.setPixelColor(x, y, QColor(x % 256, y % 256, x / 256));
  }
  return image;
}

class AreaMirrorsTest : public MirrorBench {
 protected:
  std::string Path(const QString& name) const { return folder.filePath(name).toStdString(); }

  std::string Saved(const QImage& image, const QString& name) const {
    EXPECT_TRUE(image.save(folder.filePath(name), name.endsWith(".png") ? "PNG" : "BMP"));
    return Path(name);
  }

  std::string Saved(const QImage& image, const QString& name, const QDateTime& changed) const {
    const std::string path = Saved(image, name);
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    EXPECT_TRUE(file.setFileTime(changed, QFileDevice::FileModificationTime));
    return path;
  }

  // The frame with its picture, as painted, a pixel for each of the picture's.
  QImage Painted() {
    PictureFrameMirror& around = mirrors.AddAround(frame, picture, &window);
    Raise(around.Widget());
    const QRect inside = around.Widget().contentsRect();
    return around.Widget().grab(inside).toImage().scaled(inside.size());
  }

  QTemporaryDir folder;
};

TEST_F(AreaMirrorsTest, APictureLargerThanItsFrameIsCutAndNotScaled) {
  const QImage image = Grid(600, 400);
  picture.Show(Saved(image, "car.bmp"), 600, 400);
  picture.MoveTo(-90, -50);
  const QImage painted = Painted();
  ASSERT_EQ(painted.size(), QSize(kPictureFrameWidth, kPictureFrameHeight));
  EXPECT_EQ(painted.pixelColor(0, 0), image.pixelColor(90, 50));
  EXPECT_EQ(painted.pixelColor(200, 100), image.pixelColor(290, 150));
  EXPECT_EQ(painted.pixelColor(419, 299), image.pixelColor(509, 349));
  EXPECT_EQ(Difference(picture), "");
}

TEST_F(AreaMirrorsTest, APictureSmallerThanItsFrameLiesWhereItIsPut) {
  QImage red(100, 50, QImage::Format_RGB32);
  red.fill(Qt::red);
  picture.Show(Saved(red, "car.bmp"), 100, 50);
  picture.MoveTo(160, 125);
  const QImage painted = Painted();
  EXPECT_EQ(painted.pixelColor(160, 125), QColor(Qt::red));
  EXPECT_EQ(painted.pixelColor(259, 174), QColor(Qt::red));
  EXPECT_NE(painted.pixelColor(159, 125), QColor(Qt::red));
  EXPECT_NE(painted.pixelColor(260, 174), QColor(Qt::red));
}

TEST_F(AreaMirrorsTest, AClearedPictureShowsNothing) {
  picture.Show(Saved(Grid(50, 40), "car.bmp"), 50, 40);
  mirrors.AddAround(frame, picture, &window);
  EXPECT_EQ(Difference(picture), "");
  picture.Clear();
  EXPECT_EQ(Difference(picture), "");
}

TEST_F(AreaMirrorsTest, AFileThatHasChangedIsReadAnew) {
  const QDateTime now = QDateTime::currentDateTime();
  picture.Show(Saved(Grid(50, 40), "car.bmp", now), 50, 40);
  mirrors.AddAround(frame, picture, &window);
  picture.Show(Saved(Grid(30, 20), "car.bmp", now.addSecs(60)), 30, 20);
  EXPECT_EQ(Difference(picture), "");
}

TEST_F(AreaMirrorsTest, AnotherFileOfTheSameTimeIsReadAndPainted) {
  const QDateTime now = QDateTime::currentDateTime();
  const std::string bus = Saved(Grid(50, 40), "bus.bmp", now);
  const std::string taxi = Saved(Grid(30, 20), "taxi.bmp", now);
  Raise(mirrors.AddAround(frame, picture, &window).Widget());
  QWidget& area = mirrors.Of(picture).Widget();
  for (const std::string& file : {bus, taxi, bus}) {
    const int width = file == bus ? 50 : 30;
    EXPECT_GT(PaintsAfter([&] { picture.Show(file, width, width - 10); }, area), 0);
    EXPECT_EQ(Difference(picture), "");
  }
}

TEST_F(AreaMirrorsTest, APictureIsToldByItsContentAndNotByItsName) {
  EXPECT_EQ(ReadPicture(Saved(Grid(30, 20), "bmp.jpg")).size(), QSize(30, 20));
  EXPECT_TRUE(ReadPicture(Saved(Grid(30, 20), "png.png")).isNull());
  EXPECT_TRUE(ReadPicture(Path("missing.bmp")).isNull());
  ASSERT_EQ(mkfifo(Path("pipe.bmp").c_str(), 0600), 0);
  EXPECT_TRUE(ReadPicture(Path("pipe.bmp")).isNull());
}

// Cameras write beside a photo which way it was held; the pictures of vehicles are shown as stored.
TEST_F(AreaMirrorsTest, APictureIsNotTurnedByTheMarkOfACamera) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  Grid(30, 20).save(&buffer, "JPG");
  const QByteArray turnedByAQuarter = QByteArray::fromHex(
      "ffe1 0022 457869660000 4d4d002a00000008 0001 0112 0003 00000001 00060000 00000000");
  QFile file(folder.filePath("photo.jpg"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes.insert(2, turnedByAQuarter));
  file.close();
  QImageReader marked(file.fileName());
  EXPECT_EQ(marked.transformation(), QImageIOHandler::TransformationRotate90);
  EXPECT_EQ(ReadPicture(Path("photo.jpg")).size(), QSize(30, 20));
}

TEST_F(AreaMirrorsTest, TheDesktopKnowsThePicturesOwnSize) {
  QtDesktop desktop;
  const auto size = desktop.SizeOfPicture(Saved(Grid(30, 20), "car.bmp"));
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 30);
  EXPECT_EQ(size->height, 20);
  EXPECT_FALSE(desktop.SizeOfPicture(Path("missing.bmp")));
}

// A small file whose header promises a picture that would need too much memory, whatever the toolkit thinks.
TEST_F(AreaMirrorsTest, ADecompressionBombShowsNothing) {
  const std::string file = Saved(Grid(8, 8), "bomb.bmp");
  QFile bytes(QString::fromStdString(file));
  ASSERT_TRUE(bytes.open(QIODevice::ReadWrite));
  const qint32 side = qToLittleEndian(6000);
  for (const qint64 place : {18, 22}) {
    bytes.seek(place);
    bytes.write(reinterpret_cast<const char*>(&side), sizeof side);
  }
  bytes.close();
  QImageReader::setAllocationLimit(256);
  EXPECT_TRUE(ReadPicture(file).isNull());
  EXPECT_FALSE(QtDesktop().SizeOfPicture(file));
}

TEST_F(AreaMirrorsTest, ASwatchShowsTheColorThatItHasAlready) {
  swatch.Fill(10, 200, 30);
  Show<ColorArea>(swatch);
  EXPECT_EQ(Difference(swatch), "");
}

TEST_F(AreaMirrorsTest, ASwatchShowsItsColorAndBeforeTheFirstNone) {
  auto& area = Show<ColorArea>(swatch);
  const QColor background = area.palette().color(area.backgroundRole());
  QImage painted = area.grab().toImage();
  EXPECT_EQ(painted.pixelColor(painted.rect().center()), background);
  swatch.Fill(10, 200, 30);
  painted = area.grab().toImage();
  EXPECT_EQ(painted.pixelColor(painted.rect().center()), QColor(10, 200, 30));
  EXPECT_EQ(Difference(swatch), "");
}

}  // namespace
}  // namespace wheelwright::testing
