// A scroll bar and its widget, in both directions.
#include "forms/qt/MirrorBench.h"
#include "forms/qt/widgets/Swatches.h"

#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class ScrollBarMirrorTest : public MirrorBench {
 protected:
  ScrollBarMirrorTest() { bar.changed = Counts(); }

  QPoint MiddleOfHandle() {
    QStyleOptionSlider option;
    option.initFrom(&widget);
    option.orientation = Qt::Horizontal;
    option.minimum = widget.minimum();
    option.maximum = widget.maximum();
    option.pageStep = widget.pageStep();
    option.sliderPosition = widget.sliderPosition();
    const QStyle& style = *widget.style();
    return style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &widget).center();
  }

  void DragTo(QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(QPointF(place)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
  }

  // The value that stands on both sides.
  int Value() {
    EXPECT_EQ(Difference(bar), "");
    return bar.Value();
  }

  int ValueAfter(Qt::Key key) {
    QTest::keyClick(&widget, key);
    return Value();
  }

  QScrollBar& widget = Show<QScrollBar>(bar);
};

TEST_F(ScrollBarMirrorTest, TheKeysThatPointRightAndUpRaiseIt) {
  widget.setFocus();
  bar.SetValue(100);
  EXPECT_EQ(ValueAfter(Qt::Key_Right), 101);
  EXPECT_EQ(ValueAfter(Qt::Key_Left), 100);
  EXPECT_EQ(ValueAfter(Qt::Key_Up), 101);
  EXPECT_EQ(ValueAfter(Qt::Key_Down), 100);
  EXPECT_EQ(ValueAfter(Qt::Key_PageUp), 116);
  EXPECT_EQ(ValueAfter(Qt::Key_PageDown), 100);
  EXPECT_EQ(ValueAfter(Qt::Key_End), 255);
  EXPECT_EQ(ValueAfter(Qt::Key_Right), 255);
  EXPECT_EQ(ValueAfter(Qt::Key_Home), 0);
}

TEST_F(ScrollBarMirrorTest, TheTabKeyReachesItWhichIsSeen) {
  const QImage before = widget.grab().toImage();
  QTest::keyClick(&elsewhere, Qt::Key_Tab);
  EXPECT_TRUE(widget.hasFocus());
  EXPECT_NE(widget.grab().toImage(), before);
}

TEST_F(ScrollBarMirrorTest, DraggingRepaintsTheSwatchBeforeTheButtonIsReleased) {
  auto& area = Show<ColorArea>(swatch);
  bar.changed = [this] { swatch.Fill(bar.Value(), 0, 0); };
  const QPoint start = MiddleOfHandle();
  QTest::mousePress(&widget, Qt::LeftButton, {}, start);
  EXPECT_GT(PaintsAfter([&] { DragTo(start + QPoint(60, 0)); }, area), 0);
  const int halfWay = Value();
  EXPECT_GT(halfWay, 0);
  const QImage painted = area.grab().toImage();
  EXPECT_EQ(painted.pixelColor(painted.rect().center()), QColor(halfWay, 0, 0));
  DragTo(start + QPoint(5000, 0));
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, start + QPoint(5000, 0));
  EXPECT_EQ(Value(), 255);
}

TEST_F(ScrollBarMirrorTest, TheProgramsValueRunsTheHandlerOnce) {
  bar.SetValue(128);
  EXPECT_EQ(widget.value(), 128);
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace wheelwright::testing
