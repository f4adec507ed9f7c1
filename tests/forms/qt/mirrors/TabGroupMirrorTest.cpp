// A tab group and its widget, in both directions.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/Settle.h"

#include <QTabBar>
#include <QToolButton>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class TabGroupMirrorTest : public MirrorBench {
 protected:
  TabGroupMirrorTest() {
    tabs.clicked = [this](int tab) { left.push_back(tab); };
  }

  QTabWidget& Widget() {
    static_cast<void>(Show<QTabWidget>(tabs));
    return static_cast<QTabWidget&>(mirrors.Of(tabs).Widget());
  }

  // The tab that lies in front on both sides.
  int Tab() {
    EXPECT_EQ(Difference(tabs), "");
    return tabs.Tab();
  }

  std::vector<int> left;
};

void ClickTab(QTabWidget& widget, int tab, Qt::MouseButton which = Qt::LeftButton) {
  QTabBar& bar = *widget.tabBar();
  QTest::mouseClick(&bar, which, {}, bar.tabRect(tab).center());
}

TEST_F(TabGroupMirrorTest, AClickBringsATabToTheFrontAndTellsWhichWasLeft) {
  QTabWidget& widget = Widget();
  ClickTab(widget, 2);
  EXPECT_EQ(Tab(), 2);
  ClickTab(widget, 1);
  EXPECT_EQ(Tab(), 1);
  EXPECT_EQ(left, (std::vector<int>{0, 2}));
}

TEST_F(TabGroupMirrorTest, AClickOnTheTabInFrontOrWithAnotherButtonRunsNothing) {
  ClickTab(Widget(), 0);
  ClickTab(Widget(), 1, Qt::RightButton);
  EXPECT_EQ(Tab(), 0);
  EXPECT_EQ(left, std::vector<int>());
}

TEST_F(TabGroupMirrorTest, TheKeyboardChangesTabs) {
  QTabWidget& widget = Widget();
  widget.tabBar()->setFocus();
  QTest::keyClick(widget.tabBar(), Qt::Key_Right);
  EXPECT_EQ(Tab(), 1);
  QTest::keyClick(&widget, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(Tab(), 2);
  EXPECT_EQ(left, (std::vector<int>{0, 1}));
}

TEST_F(TabGroupMirrorTest, BringingToTheFrontIsNoClick) {
  QTabWidget& widget = Widget();
  tabs.BringToFront(2);
  EXPECT_EQ(widget.currentIndex(), 2);
  EXPECT_EQ(left, std::vector<int>());
}

// A tab reads marks, so that a single "&" of its text would be eaten.
TEST_F(TabGroupMirrorTest, ACaptionShowsEveryAmpersandThatItHolds) {
  QTabWidget& widget = Widget();
  EXPECT_EQ(widget.tabText(1), "R&&D");
  tabs.SetTab(0, "Power && drive");
  EXPECT_EQ(widget.tabText(0), "Power && drive");
  EXPECT_EQ(Tab(), 0);
}

TEST_F(TabGroupMirrorTest, TabsWithoutRoomAreReachedByArrows) {
  QTabWidget& widget = Widget();
  const auto arrowsShow = [&] {
    Settle();
    const auto arrows = widget.tabBar()->findChildren<QToolButton*>();
    return std::any_of(arrows.begin(), arrows.end(), [](const auto* arrow) { return arrow->isVisible(); });
  };
  window.resize(600, 200);
  EXPECT_FALSE(arrowsShow());
  window.resize(0, 0);
  EXPECT_TRUE(arrowsShow());
}

}  // namespace
}  // namespace wheelwright::testing
