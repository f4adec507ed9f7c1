// Sessions that never click.
#include "forms/qt/layout/Keyboard.h"
#include "screen/Fields.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTabBar>
#include <QTabWidget>

namespace wheelwright::testing {
namespace {

using Shown = std::vector<std::string>;

class KeyboardTest : public Keyboard {
 protected:
  // Opens a file by the key for it; the file dialog is the desktop's.
  void OpenByKey(const std::string& path, const std::string& text, int filterIndex) {
    test.files.contents[path] = text;
    test.desktop.choices.push_back(FileChoice{path, filterIndex});
    Press(QKeySequence::Open);
  }
  void OpenThreeVehicles() {
    OpenByKey(TestSession::kHandlingPath,
              CrLf({VehicleLineOf("BUS"), VehicleLineOf("TAXI"), VehicleLineOf("TRUCK")}), 1);
  }
  void OpenDefinition() { OpenByKey(TestSession::kDefinitionPath, kDefinition, 2); }
  void OpenColors() { OpenByKey(TestSession::kColorPath, kColors, 3); }

  // Types another text into a box.
  void Overtype(const TextBox& box, const QString& text) {
    TabTo(box);
    Press(QKeySequence::SelectAll);
    Type(text);
  }

  // The controls of the tab in front that a person can change or press, by name, in the window's
  // order.
  QStringList UsableOn(const TabGroup& group) {
    QStringList names;
    for (const Control* control : main.Controls()) {
      if (control == &group || !windows.Of(group).isAncestorOf(&windows.Of(*control))) continue;
      const QWidget& widget = windows.Of(*control);
      const bool isUsed = dynamic_cast<const Captioned*>(control) == nullptr ||
                          dynamic_cast<const Button*>(control) != nullptr ||
                          dynamic_cast<const CheckBox*>(control) != nullptr;
      const bool isSeenOnly =
          dynamic_cast<const Picture*>(control) != nullptr || dynamic_cast<const Swatch*>(control) != nullptr;
      if (widget.isVisible() && isUsed && !isSeenOnly) names += widget.objectName();
    }
    return names;
  }

  void ExpectAllReached(TabGroup& group) {
    for (int tab = 0; tab < static_cast<int>(group.Tabs().size()); ++tab) {
      TurnTo(group, tab);
      const QStringList round = RoundOfTab();
      for (const QString& name : UsableOn(group)) {
        EXPECT_TRUE(round.contains(name)) << name.toStdString() << " on tab " << tab;
      }
    }
  }
};

TEST_F(KeyboardTest, TheFocusBeginsAtOpeningAndGoesToTheVehiclesOfEachFile) {
  EXPECT_EQ(Focused(), "cmdOpen");
  OpenThreeVehicles();
  EXPECT_EQ(Focused(), "cmbAutos");
  TabTo(main.cmdOpen);
  test.desktop.choices.push_back(std::nullopt);
  Press(Qt::Key_Space);
  EXPECT_EQ(Focused(), "cmdOpen") << "without a load";
  OpenDefinition();
  EXPECT_EQ(Focused(), "cmbAutos");
}

TEST_F(KeyboardTest, AValueIsChangedAndSaved) {
  OpenThreeVehicles();
  EXPECT_EQ(test.desktop.shown, (Shown{"open", "hourglass", "normal"}));
  Press(QKeySequence::Find);
  EXPECT_EQ(Focused(), "cmbAutos");
  Type("tr");
  EXPECT_EQ(main.cmbAutos.Text(), "TRUCK");
  Overtype(main.txtGewicht, "2222.5");
  EXPECT_FALSE(test.vars.IsSaved);
  Press(QKeySequence::Save);
  EXPECT_TRUE(test.vars.IsSaved);
  EXPECT_NE(test.Disk(TestSession::kHandlingPath).find(VehicleLineOf("TRUCK", "2222.5")), std::string::npos);
  EXPECT_EQ(Differences(), "");
}

TEST_F(KeyboardTest, TheVehicleListIsSearchedByTyping) {
  OpenThreeVehicles();
  TabTo(main.cmbAutos);
  Type("t");
  EXPECT_EQ(main.cmbAutos.Text(), "TAXI");
  EXPECT_EQ(main.txtAutoname.Text(), "TAXI");
  Press(Qt::Key_Home);
  EXPECT_EQ(main.cmbAutos.Text(), "BUS");
  Press(Qt::Key_End);
  EXPECT_EQ(main.txtAutoname.Text(), "TRUCK");
}

TEST_F(KeyboardTest, TheVehicleListHasNoKeyBeforeAFileIsOpen) {
  const QString before = Focused();
  Press(QKeySequence::Find);
  EXPECT_EQ(Focused(), before);
}

TEST_F(KeyboardTest, TheKeysReachEverythingOfAHandlingFile) {
  OpenThreeVehicles();
  ExpectAllReached(main.SSTab1);
}

TEST_F(KeyboardTest, TheKeysReachEverythingOfADefinitionFile) {
  OpenDefinition();
  for (int type = 0; type < main.cmbTyp.Count(); ++type) {
    main.cmbTyp.Choose(type);
    ExpectAllReached(main.SSTab2);
  }
}

TEST_F(KeyboardTest, TheKeysReachEverythingOfAColorFile) {
  OpenColors();
  ExpectAllReached(main.SSTab3);
}

TEST_F(KeyboardTest, TheTabsTurnFromAnyFieldOnThem) {
  OpenThreeVehicles();
  TabTo(main.txtGewicht);
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(main.SSTab1.Tab(), 1);
  EXPECT_TRUE(windows.Of(main.SSTab1).isAncestorOf(windows.Of(main).focusWidget()));
  Press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(main.SSTab1.Tab(), 0);
}

TEST_F(KeyboardTest, TheTabsTurnFromAnywhereInTheWindow) {
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(main.SSTab1.Tab(), 0) << "without a file";
  OpenColors();
  for (const Control* from : std::initializer_list<Control*>{&main.cmbAutos, &main.cmdHelp, &main.SSTab3}) {
    TabTo(*from);
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(main.SSTab3.Tab(), 1) << from->Name();
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(main.SSTab3.Tab(), 0) << from->Name();
    Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(main.SSTab3.Tab(), 1) << from->Name();
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(main.SSTab3.Tab(), 0) << from->Name();
    EXPECT_EQ(Focused().toStdString(), from->Name());
  }
  EXPECT_EQ(main.SSTab1.Tab(), 0);
}

TEST_F(KeyboardTest, TheNextAndThePreviousVehicleComeToTheFieldWithTheFocus) {
  OpenThreeVehicles();
  int shown = 0;
  const auto show = main.cmbAutos.clicked;
  main.cmbAutos.clicked = [&] {
    ++shown;
    show();
  };
  for (const Control* from : std::initializer_list<Control*>{&main.txtGewicht, &main.cmbFrontLichter,
                                                             &main.cmbAutos, &main.cmdSave}) {
    TabTo(*from);
    shown = 0;
    Press(Qt::Key_PageDown, Qt::AltModifier);
    Press(Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(main.txtAutoname.Text(), "TRUCK") << from->Name();
    EXPECT_EQ(shown, 2);
    Press(Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(main.cmbAutos.Text(), "TAXI") << from->Name();
    Press(Qt::Key_PageUp, Qt::AltModifier);
    Press(Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(main.txtAutoname.Text(), "BUS") << from->Name();
    EXPECT_EQ(Focused().toStdString(), from->Name());
  }
  EXPECT_TRUE(test.vars.IsSaved);
  EXPECT_EQ(Differences(), "");
}

// What is typed replaces the value, as after the Tab key.
TEST_F(KeyboardTest, OneFieldIsTypedForManyVehicles) {
  OpenThreeVehicles();
  TabTo(main.txtGewicht);
  for (const char* mass : {"1", "2", "3"}) {
    Type(mass);
    Press(Qt::Key_PageDown, Qt::AltModifier);
  }
  for (int car = 0; car < 3; ++car) EXPECT_EQ(test.vars.Cars.At(car).Mass, std::to_string(car + 1));
}

TEST_F(KeyboardTest, TheKeysStandInToolTips) {
  const auto tip = [this](const Control& control) { return windows.Of(control).toolTip(); };
  EXPECT_EQ(tip(main.cmdOpen), "Ctrl+O");
  EXPECT_EQ(tip(main.cmdSave), "Ctrl+S");
  EXPECT_EQ(tip(main.cmdSaveAs), "Ctrl+Shift+S");
  EXPECT_EQ(tip(main.cmdHelp), "F1");
  EXPECT_EQ(tip(main.cmdEnde), "Ctrl+Q");
  EXPECT_EQ(tip(main.cmbAutos), "Ctrl+F; Alt+PgDown; Alt+PgUp");
  for (const TabGroup* group : {&main.SSTab1, &main.SSTab2, &main.SSTab3}) {
    EXPECT_EQ(Of<QTabWidget>(*group).tabBar()->toolTip(), "Ctrl+Tab; Ctrl+PgDown; Ctrl+Shift+Tab; Ctrl+PgUp");
    EXPECT_EQ(tip(*group), "") << "it would show over all fields";
  }
}

TEST_F(KeyboardTest, EveryTextBoxIsTypedInto) {
  OpenThreeVehicles();
  for (const FieldRow<Car>& field : kHandlingFields) {
    TextBox* const box = InputOf<TextBox>(main, field);
    if (box == nullptr) continue;
    TurnTo(main.SSTab1, field.tab);
    Overtype(*box, "7.5");
    EXPECT_EQ(test.vars.Cars.At(test.vars.CurrentCar).*field.value, "7.5") << box->Name();
  }
  EXPECT_EQ(Differences(), "");
}

TEST_F(KeyboardTest, EveryDefinitionIsTypedInto) {
  OpenDefinition();
  for (const FieldRow<IdeEntry>& field : kDefinitionFields) {
    TextBox* const box = InputOf<TextBox>(main, field);
    if (box == nullptr || !box->IsVisible()) continue;
    TurnTo(main.SSTab2, field.tab);
    Overtype(*box, "7");
    EXPECT_EQ(test.vars.Ides.At(test.vars.CurrentIde).*field.value, "7") << box->Name();
  }
}

TEST_F(KeyboardTest, TheSpaceBarTicksEveryBox) {
  OpenThreeVehicles();
  TurnTo(main.SSTab1, kFlagsTab);
  for (CheckBox& box : main.chkFlag) {
    const int before = box.State();
    TabTo(box);
    Press(Qt::Key_Space);
    EXPECT_EQ(box.State(), 1 - before) << box.Name();
  }
  TurnTo(main.SSTab1, kBrakesTab);
  TabTo(main.chkABS);
  Press(Qt::Key_Space);
  EXPECT_EQ(main.chkABS.State(), 1);
  EXPECT_EQ(Differences(), "");
}

TEST_F(KeyboardTest, APickListIsOpenedAndChosenFrom) {
  OpenThreeVehicles();
  TurnTo(main.SSTab1, kDriveTab);
  TabTo(main.cmbAntrieb);
  EXPECT_EQ(main.cmbAntrieb.Row(), 1);
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(Of<QComboBox>(main.cmbAntrieb).view()->isVisible());
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_FALSE(Of<QComboBox>(main.cmbAntrieb).view()->isVisible());
  EXPECT_EQ(test.vars.Cars.At(test.vars.CurrentCar).DriveType, "4");
  Press(Qt::Key_Up);
  EXPECT_EQ(test.vars.Cars.At(test.vars.CurrentCar).DriveType, "R");
}

TEST_F(KeyboardTest, TheLanguageIsChosen) {
  main.cmbSprache.AddRows({"Deutsch", "English"});
  TabTo(main.cmbSprache);
  Type("e");
  EXPECT_EQ(main.cmbSprache.Text(), "English");
}

TEST_F(KeyboardTest, AColorIsMixedNamedAddedAndDeleted) {
  OpenColors();
  TabTo(main.lstColors);
  Press(Qt::Key_End);
  EXPECT_EQ(main.lstColors.Row(), 1);
  TabTo(main.HScroll1);
  Press(Qt::Key_Right);
  TabTo(main.HScroll2);
  Press(Qt::Key_Home);
  TabTo(main.HScroll3);
  Press(Qt::Key_End);
  Overtype(main.txtColorName, "red");
  EXPECT_EQ(main.lstColors.Text(), "red - 201,0,255");
  TabTo(main.cmdNewColor);
  Press(Qt::Key_Space);
  EXPECT_EQ(main.lstColors.Text(), "Color2 - 0,128,255");
  test.desktop.answers = {true};
  TabTo(main.cmdDeleteColor);
  Press(Qt::Key_Space);
  EXPECT_EQ(main.lstColors.Rows(), (Shown{"black - 1,2,3", "red - 201,0,255"}));
  EXPECT_EQ(Differences(), "");
}

TEST_F(KeyboardTest, AColorPairIsAddedAndRemoved) {
  OpenColors();
  TurnTo(main.SSTab3, kPairsTab);
  TabTo(main.cmbColor1);
  Type("br");
  TabTo(main.cmbColor2);
  Press(Qt::Key_Down);
  TabTo(main.cmdAddColor);
  Press(Qt::Key_Space);
  EXPECT_EQ(main.lstCarColors.Rows(), (Shown{"black - brown", "brown - brown"}));
  TabTo(main.lstCarColors);
  Press(Qt::Key_Down);
  EXPECT_EQ(main.lstCarColors.Text(), "brown - brown");
  test.desktop.answers = {true};
  TabTo(main.cmdRemColor);
  Press(Qt::Key_Space);
  EXPECT_EQ(main.lstCarColors.Rows(), Shown{"black - brown"});
}

TEST_F(KeyboardTest, VehiclesAreChosenForExport) {
  OpenThreeVehicles();
  TurnTo(main.SSTab1, kMiscTab);
  TabTo(main.cmdExportCar);
  Press(Qt::Key_Space);
  ReturnTo(test.exporter);
  EXPECT_EQ(RoundOfTab(), (QStringList{"cmdAdd", "cmdDel", "cmdAddAll", "cmdDelAll", "lst2", "cmdExport",
                                       "cmdClose", "lst1"}));
  TabTo(test.exporter.lst1);
  Press(Qt::Key_Home);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  TabTo(test.exporter.cmdAdd);
  Press(Qt::Key_Space);
  EXPECT_EQ(test.exporter.lst2.Rows(), (Shown{"BUS", "TAXI"}));
  TabTo(test.exporter.lst2);
  Type("t");
  TabTo(test.exporter.cmdDel);
  Press(Qt::Key_Space);
  EXPECT_EQ(test.exporter.lst2.Rows(), Shown{"BUS"});
  test.desktop.choices = {FileChoice{"/game/out.cfg", std::nullopt}};
  TabTo(test.exporter.cmdExport);
  Press(Qt::Key_Space);
  EXPECT_NE(test.Disk("/game/out.cfg").find("BUS"), std::string::npos);
  EXPECT_FALSE(windows.Of(test.exporter).isVisible());
}

TEST_F(KeyboardTest, EnterMovesTheMarkedVehiclesToTheOtherSide) {
  OpenThreeVehicles();
  main.cmdExportCar.ClickByHand();
  ReturnTo(test.exporter);
  TabTo(test.exporter.lst1);
  Press(Qt::Key_Home);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Return);
  EXPECT_EQ(test.exporter.lst2.Rows(), (Shown{"BUS", "TAXI"}));
  EXPECT_EQ(Focused(), "lst1");
  TabTo(test.exporter.lst2);
  Press(Qt::Key_Space);
  Press(Qt::Key_Enter);
  EXPECT_EQ(test.exporter.lst1.Rows(), (Shown{"BUS", "TRUCK"}));
  EXPECT_EQ(Differences(), "");
}

TEST_F(KeyboardTest, EscapeLeavesTheExport) {
  OpenThreeVehicles();
  main.cmdExportCar.ClickByHand();
  ReturnTo(test.exporter);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(windows.Of(test.exporter).isVisible());
  EXPECT_TRUE(windows.Of(main).isVisible());
}

TEST_F(KeyboardTest, TheLoadProblemsAreReadAndLeft) {
  OpenByKey(TestSession::kHandlingPath, CrLf({VehicleLineOf("BUS", "heavy"), VehicleLineOf("TAXI", "light")}),
            1);
  ASSERT_TRUE(windows.Of(test.error).isVisible());
  ReturnTo(test.error);
  EXPECT_EQ(RoundOfTab(), (QStringList{"cmdClose", "lstErrors"}));
  TabTo(test.error.lstErrors);
  Press(Qt::Key_Home);
  Press(Qt::Key_Down);
  EXPECT_EQ(Of<QAbstractItemView>(test.error.lstErrors).currentIndex().row(), 1);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(windows.Of(test.error).isVisible());
}

TEST_F(KeyboardTest, TheLoadProblemsAreLeftByTheirButton) {
  OpenByKey(TestSession::kHandlingPath, VehicleLineOf("BUS", "heavy"), 1);
  ReturnTo(test.error);
  TabTo(test.error.cmdClose);
  Press(Qt::Key_Space);
  EXPECT_FALSE(windows.Of(test.error).isVisible());
}

TEST_F(KeyboardTest, TheButtonsBesideTheTabsAreAllReached) {
  OpenThreeVehicles();
  const QStringList round = RoundOfTab();
  for (const char* name :
       {"cmdOpen", "cmdSave", "cmdSaveAs", "cmdUndo", "cmdBackup", "cmdHelp", "cmdInfo", "cmdEnde"}) {
    EXPECT_TRUE(round.contains(name)) << name;
  }
}

}  // namespace
}  // namespace wheelwright::testing
