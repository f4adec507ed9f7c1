#include "forms/qt/Program.h"

#include <gtest/gtest.h>

#include <QImage>

namespace wheelwright::testing {
namespace {

TEST(ProgramIcon, HasEverySizeThatAWindowNeeds) {
  const QList<QSize> sizes = ProgramIcon().availableSizes();
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    EXPECT_TRUE(sizes.contains(QSize(size, size))) << size;
}

TEST(ProgramIcon, IsOpenBetweenTheSpokesAndOutsideTheTyre) {
  const QImage image = ProgramIcon().pixmap(QSize(256, 256), 1.0).toImage();
  EXPECT_EQ(255, qAlpha(image.pixel(128, 128)));
  EXPECT_EQ(0, qAlpha(image.pixel(2, 2)));
  EXPECT_EQ(0, qAlpha(image.pixel(155, 65)));
}

}  // namespace
}  // namespace wheelwright::testing
