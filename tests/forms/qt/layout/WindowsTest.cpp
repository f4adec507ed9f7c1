// One walk over everything a person can bring on screen, for each language, size of the font and
// desktop: each window, each tab of each kind of file, and on them each kind of vehicle. Whatever
// must hold for a view is tried on each of them.
#include "core/DiskFiles.h"
#include "forms/qt/Desktops.h"
#include "forms/qt/RealWindows.h"
#include "forms/qt/layout/ViewChecks.h"
#include "language/LanguageFiles.h"
#include "replay/DarkPalette.h"

#include <QDir>

namespace wheelwright::testing {
namespace {

// Painting takes most of the time; only the contrast is measured on it.
enum class Desktop { Unpainted, Own, Dark };

struct Setting {
  QString language;
  double font = 1;
  std::vector<ViewCheck> checks = kLayoutChecks;
  Desktop desktop = Desktop::Unpainted;
};

std::string DataFile(const QString& name) {
  return DiskFiles().Read(WHEELWRIGHT_SOURCE_DIR "/" + name.toStdString());
}

// The letters of all languages are shown in the same colours.
std::vector<Setting> Settings() {
  std::vector<ViewCheck> checks = kLayoutChecks;
  for (const auto& more : {kAccessibilityChecks, kAccessibleTreeChecks}) {
    checks.insert(checks.end(), more.begin(), more.end());
  }
  std::vector<Setting> settings;
  for (const QString& file : QDir(WHEELWRIGHT_SOURCE_DIR "/language").entryList({"*.lng"})) {
    const QString language = file.chopped(4);
    settings.insert(settings.end(), {{language, 1, checks}, {language, 1.5}, {language, 2}});
  }
  const QString any = settings.front().language;
  settings.push_back({any, 1, kContrastChecks, Desktop::Own});
  settings.push_back({any, 1, kContrastChecks, Desktop::Dark});
  return settings;
}

void PrintTo(const Setting& setting, std::ostream* out) {
  *out << setting.language.toStdString() << ", font times " << setting.font;
}

std::string NameOf(const ::testing::TestParamInfo<Setting>& info) {
  QString name = info.param.language.normalized(QString::NormalizationForm_D);
  name.remove(QRegularExpression("[^A-Za-z]"));
  return name.toStdString() + "Font" + std::to_string(static_cast<int>(info.param.font * 100)) +
         (info.param.desktop == Desktop::Own    ? "Painted"
          : info.param.desktop == Desktop::Dark ? "PaintedDark"
                                                : "");
}

class WindowsTest : private FontOfDesktop, public RealWindows, public ::testing::WithParamInterface<Setting> {
 protected:
  WindowsTest() : FontOfDesktop(GetParam().font) {
    const QString file = GetParam().language + ".lng";
    test.files.contents[test.vars.AppPath + file.toStdString()] = DataFile("language/" + file);
    DiscoverLanguages(test.session);
    if (GetParam().desktop == Desktop::Unpainted) StopPainting();
  }

  void WalkHandling();
  void WalkDefinition();
  void WalkColors();
  void WalkOtherWindows();
  void WalkTabs(TabGroup& group, const std::string& view);
  void Visit(const Window& window, const std::string& name);

  std::set<int> kinds_;
  std::set<int> distances_;
};

TEST_P(WindowsTest, AllViews) {
  const ColorsOfDesktop colors(GetParam().desktop == Desktop::Dark ? replay::DarkPalette()
                                                                   : QApplication::palette());
  Visit(main, "start");
  WalkHandling();
  WalkDefinition();
  WalkColors();
  WalkOtherWindows();
  EXPECT_EQ(kinds_.size(), 4u);
  EXPECT_EQ(distances_.size(), 1u) << "the rows of all tabs keep the same distance";
}

void WindowsTest::WalkHandling() {
  test.OpenHandling(DataFile("samples/handling.cfg"));
  for (int row = 0; row < main.cmbAutos.Count(); ++row) {
    main.cmbAutos.Choose(row);
    const int kind = test.vars.Cars.At(test.vars.CurrentCar).LineKind;
    if (!kinds_.insert(kind).second) continue;
    WalkTabs(main.SSTab1, "handling file, kind " + std::to_string(kind));
  }
}

void WindowsTest::WalkDefinition() {
  test.OpenDefinition(DataFile("samples/default.ide"));
  for (int row = 0; row < main.cmbTyp.Count(); ++row) {
    main.cmbTyp.Choose(row);
    WalkTabs(main.SSTab2, "definition file, " + main.cmbTyp.Text());
  }
}

void WindowsTest::WalkColors() {
  test.vars.IsSaved = true;
  test.OpenColors(DataFile("samples/carcols.dat"));
  WalkTabs(main.SSTab3, "colour file");
}

void WindowsTest::WalkOtherWindows() {
  main.cmdExportCar.ClickByHand();
  Visit(test.exporter, "export");
  test.error.lstErrors.AddRow({"BUS", main.txtGewicht.label.Caption(), test.vars.Lang[104]});
  test.error.SetVisible(true);
  Visit(test.error, "load problems");
}

void WindowsTest::WalkTabs(TabGroup& group, const std::string& view) {
  for (int tab = 0; tab < static_cast<int>(group.Tabs().size()); ++tab) {
    group.BringToFront(tab);
    Visit(main, view + ", tab " + std::to_string(tab));
  }
}

void WindowsTest::Visit(const Window& window, const std::string& name) {
  Settle();
  View view = {windows, main, window, windows.Of(window), {}};
  for (const Control* control : window.Controls()) {
    if (view.Of(*control).isVisible()) view.showing.push_back(control);
  }
  distances_.merge(RowDistances(view));
  for (const ViewCheck& check : GetParam().checks) {
    SCOPED_TRACE(name + ": " + check.what);
    check.run(view);
  }
}

INSTANTIATE_TEST_SUITE_P(Settings, WindowsTest, ::testing::ValuesIn(Settings()), NameOf);

}  // namespace
}  // namespace wheelwright::testing
