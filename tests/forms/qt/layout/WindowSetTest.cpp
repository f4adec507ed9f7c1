// The coming and going of the three windows, and their keys.
#include "forms/qt/RealWindows.h"
#include "forms/qt/Settle.h"

#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSessionManager>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;

// Whether the desktop waits for a person's answer at the end of the user's session, and how often it
// was told not to end.
struct UsersSession {
  static inline bool waits = true;
  static inline int refusals = 0;
};

class WindowSetTest : public RealWindows {
 protected:
  void ShowErrors() {
    test.error.lstErrors.AddRow({"BUS", "", "x"});
    test.error.SetVisible(true);
    Activate(test.error);
  }

  void ShowExport() {
    test.OpenHandling(VehicleLineOf("BUS"));
    main.cmdExportCar.ClickByHand();
    Activate(test.exporter);
  }

  // Each of the platform's keys, or the usual one where it has none.
  void Press(QKeySequence::StandardKey key, const char* usual) {
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    if (keys.isEmpty()) keys += QKeySequence(usual);
    for (const QKeySequence& sequence : keys) QTest::keySequence(&windows.Of(main), sequence);
  }
};

TEST_F(WindowSetTest, EachWindowIsOnScreenWhileItsPlainOneIsVisible) {
  EXPECT_TRUE(windows.Of(main).isVisible());
  EXPECT_FALSE(windows.Of(test.error).isVisible());
  EXPECT_FALSE(windows.Of(test.exporter).isVisible());
  EXPECT_EQ(Differences(), "");
}

TEST_F(WindowSetTest, ClosingTheLoadProblemsHidesThemAndKeepsTheRows) {
  ShowErrors();
  EXPECT_TRUE(windows.Of(test.error).close());
  EXPECT_FALSE(windows.Of(test.error).isVisible());
  EXPECT_EQ(test.error.lstErrors.Rows().size(), 1u);
  test.error.lstErrors.AddRow({"TAXI", "", "y"});
  test.error.SetVisible(true);
  EXPECT_TRUE(windows.Of(test.error).isVisible());
  EXPECT_EQ(Differences(), "");
}

TEST_F(WindowSetTest, ClosingTheMainWindowAsksAndStaysWithoutAYes) {
  test.vars.IsSaved = false;
  test.desktop.answers = {false};
  EXPECT_FALSE(windows.Of(main).close());
  EXPECT_TRUE(windows.Of(main).isVisible());
  EXPECT_EQ(test.desktop.shown, (Shown{"question: E117"}));
}

TEST_F(WindowSetTest, ClosingTheMainWindowWithAYesEndsTheProgram) {
  test.vars.IsSaved = false;
  test.desktop.answers = {true};
  windows.Of(main).close();
  EXPECT_EQ(test.desktop.shown, (Shown{"question: E117", "end"}));
}

TEST_F(WindowSetTest, TheEndOfTheUsersSessionComesAsTheCloseBoxDoes) {
  auto& manager = *qApp->findChild<QSessionManager*>();
  test.vars.IsSaved = false;
  test.desktop.answers = {false, true};
  Q_EMIT qApp->commitDataRequest(manager);
  EXPECT_EQ(test.desktop.shown, Shown{"question: E117"});
  EXPECT_TRUE(windows.Of(main).isVisible());
  EXPECT_EQ(UsersSession::refusals, 1);
  Q_EMIT qApp->commitDataRequest(manager);
  EXPECT_EQ(test.desktop.shown, (Shown{"question: E117", "question: E117", "end"}));
  EXPECT_EQ(UsersSession::refusals, 1);
}

TEST_F(WindowSetTest, NobodyIsAskedWhereTheEndOfTheUsersSessionDoesNotWait) {
  UsersSession::waits = false;
  test.vars.IsSaved = false;
  Q_EMIT qApp->commitDataRequest(*qApp->findChild<QSessionManager*>());
  UsersSession::waits = true;
  EXPECT_EQ(test.desktop.shown, Shown());
}

TEST_F(WindowSetTest, ClosingTheExportForgetsItsLists) {
  ShowExport();
  EXPECT_EQ(test.exporter.lst1.Count(), 1);
  EXPECT_TRUE(windows.Of(test.exporter).close());
  EXPECT_FALSE(test.exporter.IsVisible());
  EXPECT_EQ(test.exporter.lst1.Count(), 0);
  EXPECT_EQ(Differences(), "");
}

TEST_F(WindowSetTest, EscapeClosesTheOtherWindowsAndNotTheMainOne) {
  ShowErrors();
  QTest::keyClick(&windows.Of(test.error), Qt::Key_Escape);
  EXPECT_FALSE(test.error.IsVisible());
  ShowExport();
  QTest::keyClick(&windows.Of(test.exporter), Qt::Key_Escape);
  EXPECT_FALSE(test.exporter.IsVisible());
  Activate(main);
  test.desktop.shown.clear();
  QTest::keyClick(&windows.Of(main), Qt::Key_Escape);
  EXPECT_EQ(test.desktop.shown, Shown());
}

TEST_F(WindowSetTest, TheMainWindowStaysUsableBesideTheOthers) {
  ShowErrors();
  ShowExport();
  EXPECT_FALSE(windows.Of(test.error).isModal());
  EXPECT_FALSE(windows.Of(test.exporter).isModal());
  auto& open = Of<QPushButton>(main.cmdOpen);
  test.desktop.shown.clear();
  test.desktop.choices = {std::nullopt};
  QTest::mouseClick(&open, Qt::LeftButton);
  EXPECT_EQ(test.desktop.shown, Shown{"open"});
}

// The program ends with its main window; another window that is up must not keep the process.
TEST_F(WindowSetTest, OnlyTheMainWindowCountsForTheEnd) {
  EXPECT_TRUE(windows.Of(main).testAttribute(Qt::WA_QuitOnClose));
  EXPECT_FALSE(windows.Of(test.error).testAttribute(Qt::WA_QuitOnClose));
  EXPECT_FALSE(windows.Of(test.exporter).testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(WindowSetTest, AnArrowOfTheExportIsDescribedByTheListThatItFills) {
  const auto description = [this](const Button& arrow) { return windows.Of(arrow).accessibleDescription(); };
  EXPECT_EQ(description(test.exporter.cmdAdd), "E111");
  EXPECT_EQ(description(test.exporter.cmdAddAll), "E111");
  EXPECT_EQ(description(test.exporter.cmdDel), "E110");
  EXPECT_EQ(description(test.exporter.cmdDelAll), "E110");
}

TEST_F(WindowSetTest, ADoubleClickMovesAVehicleToTheOtherSideOfTheExport) {
  ShowExport();
  const auto doubleClick = [this](const MarkList& list) {
    auto& view = Of<RowView>(list);
    const QPoint row = view.visualRect(view.model()->index(0, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(list.Marked(), std::vector<int>{0});
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, row);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, row);
  };
  doubleClick(test.exporter.lst1);
  EXPECT_EQ(test.exporter.lst2.Rows(), Shown{"BUS"});
  doubleClick(test.exporter.lst2);
  EXPECT_EQ(test.exporter.lst1.Rows(), Shown{"BUS"});
  EXPECT_EQ(Differences(), "");
}

// A screen may be too small for that.
TEST_F(WindowSetTest, TheOtherWindowsComeUpOverTheMiddleOfTheMainOne) {
  QWidget& owner = windows.Of(main);
  const QRect screen = owner.screen()->availableGeometry();
  owner.move(screen.center() - owner.rect().center());
  ShowErrors();
  ShowExport();
  for (const Window* window : {static_cast<Window*>(&test.error), static_cast<Window*>(&test.exporter)}) {
    QRect place = windows.Of(*window).frameGeometry();
    place.moveCenter(owner.frameGeometry().center());
    const QPoint wanted(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
    EXPECT_LE((windows.Of(*window).pos() - wanted).manhattanLength(), 2) << window->Name();
  }
}

TEST_F(WindowSetTest, TheOtherWindowsStayOnTheScreen) {
  const QRect screen = windows.Of(main).screen()->availableGeometry();
  windows.Of(main).move(screen.topLeft() - QPoint(3000, 3000));
  ShowExport();
  EXPECT_EQ(windows.Of(test.exporter).pos(), screen.topLeft());
  test.exporter.SetVisible(false);
  windows.Of(main).move(screen.bottomRight() + QPoint(3000, 3000));
  ShowExport();
  EXPECT_EQ(windows.Of(test.exporter).frameGeometry().bottomRight(), screen.bottomRight());
}

TEST_F(WindowSetTest, TheStandardKeysClickTheirButtons) {
  test.desktop.choices = {std::nullopt};
  Press(QKeySequence::Open, "Ctrl+O");
  EXPECT_EQ(test.desktop.shown, Shown{"open"});
  Press(QKeySequence::HelpContents, "F1");
  EXPECT_EQ(test.LastShown(), "error: E121");
  Press(QKeySequence::Quit, "Ctrl+Q");
  EXPECT_EQ(test.LastShown(), "end");
}

TEST_F(WindowSetTest, InfoHasTheFirstOfItsLettersThatNoOtherCaptionHas) {
  const auto& info = Of<QPushButton>(main.cmdInfo);
  EXPECT_EQ(info.text(), "&Info");
  main.lblColorName.SetCaption("&Name");
  main.cmdHelp.SetCaption("&Instructions");
  Settle();
  EXPECT_EQ(info.text(), "In&fo");
  QTest::keyClick(&windows.Of(main), Qt::Key_F, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !test.desktop.shown.empty(); }));
  EXPECT_TRUE(test.LastShown().starts_with("information: ")) << test.LastShown();
}

TEST_F(WindowSetTest, TheKeysOfSavingWorkOnceAFileIsOpen) {
  Press(QKeySequence::Save, "Ctrl+S");
  Press(QKeySequence::SaveAs, "Ctrl+Shift+S");
  EXPECT_EQ(test.desktop.shown, Shown());
  test.OpenHandling(VehicleLineOf("BUS"));
  test.files.written.clear();
  Press(QKeySequence::Save, "Ctrl+S");
  EXPECT_EQ(test.files.written, Shown{TestSession::kHandlingPath});
  test.desktop.choices = {std::nullopt};
  Press(QKeySequence::SaveAs, "Ctrl+Shift+S");
  EXPECT_EQ(test.LastShown(), "save");
}

// The group of tabs that shows takes the space of the greatest.
TEST_F(WindowSetTest, TheMainWindowKeepsItsSizeWhateverFileIsOpen) {
  const QWidget& window = windows.Of(main);
  const auto sizes = [&] {
    Settle();
    return std::pair(window.size(), window.minimumSizeHint());
  };
  const auto before = sizes();
  test.OpenHandling(VehicleLineOf("BUS"));
  EXPECT_EQ(sizes(), before);
  test.OpenDefinition(kDefinition);
  EXPECT_EQ(sizes(), before);
  test.OpenColors(kColors);
  EXPECT_EQ(sizes(), before);
}

// The keyboard reaches all that can have the focus, and brings it into sight.
class SmallScreenTest : public WindowSetTest {
 protected:
  // The middle, but the cursor of a text box.
  static bool IsInSight(const QWidget& part) {
    const QPoint point = part.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    const QWidget* around = &part;
    while (!around->isWindow()) {
      around = around->parentWidget();
      if (!around->rect().contains(part.mapTo(around, point))) return false;
    }
    return true;
  }

  void ExpectAllInReach(const Window& window) {
    Activate(window);
    for (const Control* control : window.Controls()) {
      QWidget& part = windows.Of(*control);
      if (!part.isVisible() || (part.focusPolicy() & Qt::TabFocus) == 0) continue;
      part.setFocus(Qt::ShortcutFocusReason);
      Settle();
      EXPECT_TRUE(IsInSight(part)) << control->Name();
    }
  }

  void ExpectAllTabsInReach(TabGroup& tabs) {
    for (std::size_t tab = 0; tab < tabs.Tabs().size(); ++tab) {
      tabs.ClickByHand(static_cast<int>(tab));
      ExpectAllInReach(main);
    }
  }

  bool MainScrolls() {
    auto& area = *windows.Of(main).findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
    return area.horizontalScrollBar()->maximum() > 0 || area.verticalScrollBar()->maximum() > 0;
  }
};

// As on a screen of 1024 by 600 dots at 200 %.
TEST_F(SmallScreenTest, AllCanBeReached) {
  const QSize room(512, 276);
  ShowErrors();
  ShowExport();
  windows.FitInto(room);
  for (const Window* window : all) {
    EXPECT_EQ(windows.Of(*window).size(), windows.Of(*window).size().boundedTo(room)) << window->Name();
    ExpectAllInReach(*window);
  }
  ExpectAllTabsInReach(main.SSTab1);
  test.OpenDefinition(kDefinition);
  ExpectAllTabsInReach(main.SSTab2);
  test.OpenColors(kColors);
  ExpectAllTabsInReach(main.SSTab3);
}

// As on the same screen at 150 %: what lies around the pages needn't be looked for.
TEST_F(SmallScreenTest, PagesGiveWayFirst) {
  windows.FitInto({683, 376});
  Settle();
  EXPECT_FALSE(MainScrolls());
  test.OpenHandling(VehicleLineOf("BUS"));
  ExpectAllTabsInReach(main.SSTab1);
  test.OpenColors(kColors);
  ExpectAllTabsInReach(main.SSTab3);
  EXPECT_FALSE(MainScrolls());
}

TEST_F(SmallScreenTest, TheListsOfTheExportGiveWay) {
  ShowExport();
  windows.FitInto({512, 276});
  Settle();
  for (const Button* button : {&test.exporter.cmdExport, &test.exporter.cmdClose}) {
    EXPECT_TRUE(IsInSight(windows.Of(*button))) << button->Name();
  }
}

// A click would be lost if the button slipped away under it.
TEST_F(SmallScreenTest, NothingMovesUnderTheMouse) {
  test.OpenColors(kColors);
  windows.FitInto({512, 276});
  Settle();
  QWidget& button = windows.Of(main.cmdNewColor);
  QWidget* around = &button;
  while (qobject_cast<QScrollArea*>(around) == nullptr) around = around->parentWidget();
  auto& area = static_cast<QScrollArea&>(*around);
  area.horizontalScrollBar()->setValue(button.mapTo(area.widget(), button.rect().center()).x() + 1);
  const QPoint before = button.mapToGlobal(QPoint());
  QTest::mousePress(&button, Qt::LeftButton, {}, button.rect().center() + QPoint(5, 0));
  EXPECT_TRUE(button.hasFocus());
  EXPECT_EQ(button.mapToGlobal(QPoint()), before);
  QTest::mouseRelease(&button, Qt::LeftButton);
}

// On a high screen what belongs together isn't torn apart.
TEST_F(WindowSetTest, AnAreaOfColorAndTheButtonBelowThePairsStayNearWhatLiesAbove) {
  test.OpenColors(kColors);
  windows.Of(main).resize(3840, 2160);
  const int line = windows.Of(main).fontMetrics().height();
  Settle();
  EXPECT_LT(windows.Of(main.picFarbe).height(), 20 * line);
  main.SSTab3.ClickByHand(1);
  Settle();
  EXPECT_LT(windows.Of(main.lstCarColors).height(), 20 * line);
}

// More pairs than a line of the file can have: their number has no limit but that of the table.
TEST_F(WindowSetTest, AllPairsOfAVehicleShowHoweverManyTheyAre) {
  constexpr int kMost = 32767;
  test.OpenColors(kColors);
  test.vars.CarColors.At(0).Pairs.resize(kMost - 1);
  main.cmbAutos.ChooseByHand(0);
  main.cmdAddColor.ClickByHand();
  EXPECT_EQ(Of<RowView>(main.lstCarColors).model()->rowCount(), kMost);
  main.lstCarColors.ChooseByHand(kMost - 1);
  Settle();
  EXPECT_EQ(Of<RowView>(main.lstCarColors).SelectedRows(), std::vector<int>{kMost - 1});
  EXPECT_EQ(Differences(), "");
}

// A whole day in miniature: what the program does to its controls arrives on all of them.
TEST_F(WindowSetTest, AllControlsShowWhatThePlainOnesSay) {
  test.OpenHandling(VehicleLineOf("BUS") + "\r\n" + VehicleLineOf("TAXI"));
  EXPECT_EQ(Differences(), "");
  Of<QComboBox>(main.cmbAutos).setFocus();
  QTest::keyClick(&windows.Of(main.cmbAutos), Qt::Key_Down);
  EXPECT_EQ(main.txtAutoname.Text(), "TAXI");
  EXPECT_EQ(Differences(), "");
  test.OpenDefinition(kDefinition);
  EXPECT_EQ(Differences(), "");
  test.OpenColors(kColors);
  EXPECT_EQ(Differences(), "");
}

}  // namespace
}  // namespace wheelwright::testing

// In the place of the toolkit's own, which know of no desktop in a test.
bool QSessionManager::allowsInteraction() { return wheelwright::testing::UsersSession::waits; }
void QSessionManager::cancel() { ++wheelwright::testing::UsersSession::refusals; }
