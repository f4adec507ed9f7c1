#include "forms/qt/WindowWalk.h"

#include "core/DiskFiles.h"
#include "forms/qt/Settle.h"
#include "language/LanguageFiles.h"

#include <set>

#include <QApplication>
#include <QDir>

namespace wheelwright::testing {
namespace {

std::string Sample(const std::string& name) {
  return DiskFiles().Read(std::string(WHEELWRIGHT_SOURCE_DIR) + "/samples/" + name);
}

std::string LanguageFile(const std::string& language) {
  return std::string(WHEELWRIGHT_SOURCE_DIR) + "/language/" + language + ".lng";
}

}  // namespace

LargerFont::LargerFont(double factor) : before_(QApplication::font()) {
  QFont font = before_;
  font.setPointSizeF(font.pointSizeF() * factor);
  QApplication::setFont(font);
}

LargerFont::~LargerFont() { QApplication::setFont(before_); }

std::vector<std::string> Languages() {
  std::vector<std::string> languages;
  const QDir folder(WHEELWRIGHT_SOURCE_DIR "/language", "*.lng");
  for (const QFileInfo& file : folder.entryInfoList()) {
    languages.push_back(file.completeBaseName().toStdString());
  }
  return languages;
}

std::string NameOfSetting(const ::testing::TestParamInfo<WalkSetting>& info) {
  const auto& [language, factor] = info.param;
  std::string name;
  for (const char character : language) {
    if (std::isalnum(static_cast<unsigned char>(character)) != 0) name += character;
  }
  return name + std::to_string(info.index) + "Font" +
         std::to_string(static_cast<int>(factor * 100));
}

WindowWalk::WindowWalk() : LargerFont(std::get<double>(GetParam())) {
  const std::string& language = std::get<std::string>(GetParam());
  test.files.contents[test.vars.AppPath + language + ".lng"] =
      DiskFiles().Read(LanguageFile(language));
  DiscoverLanguages(test.session);
}

void WindowWalk::Walk(const Visitor& visit) {
  Visit(main, "start", visit);
  WalkHandling(visit);
  WalkDefinition(visit);
  WalkColors(visit);
  WalkOtherWindows(visit);
}

void WindowWalk::WalkHandling(const Visitor& visit) {
  test.OpenHandling(Sample("handling.cfg"));
  std::set<int> seen;
  for (int row = 0; row < main.cmbAutos.Count(); ++row) {
    main.cmbAutos.Choose(row);
    const int kind = test.vars.Cars.At(test.vars.CurrentCar).LineKind;
    if (!seen.insert(kind).second) continue;
    WalkTabs(main.SSTab1, "handling file, kind " + std::to_string(kind), visit);
  }
  EXPECT_EQ(seen.size(), 4u);
}

void WindowWalk::WalkDefinition(const Visitor& visit) {
  test.OpenDefinition(Sample("default.ide"));
  for (int row = 0; row < main.cmbTyp.Count(); ++row) {
    main.cmbTyp.Choose(row);
    WalkTabs(main.SSTab2, "definition file, " + main.cmbTyp.Text(), visit);
  }
}

void WindowWalk::WalkColors(const Visitor& visit) {
  test.vars.IsSaved = true;
  test.OpenColors(Sample("carcols.dat"));
  WalkTabs(main.SSTab3, "colour file", visit);
}

void WindowWalk::WalkOtherWindows(const Visitor& visit) {
  main.cmdExportCar.ClickByHand();
  Visit(test.exporter, "export", visit);
  test.error.lstErrors.AddRow({"BUS", main.lblGewicht.Caption(), test.vars.Lang[104]});
  test.error.SetVisible(true);
  Visit(test.error, "load problems", visit);
}

void WindowWalk::WalkTabs(TabGroup& group, const std::string& view, const Visitor& visit) {
  for (int tab = 0; tab < static_cast<int>(group.Tabs().size()); ++tab) {
    group.BringToFront(tab);
    Visit(main, view + ", tab " + std::to_string(tab), visit);
  }
}

void WindowWalk::Visit(Window& window, const std::string& view, const Visitor& visit) {
  Settle();
  const ::testing::ScopedTrace trace(__FILE__, __LINE__, view);
  visit(window, windows.Of(window));
}

std::vector<QWidget*> WindowWalk::Showing(const Window& window) {
  std::vector<QWidget*> showing;
  for (const Control* control : window.Controls()) {
    QWidget& widget = windows.Of(*control);
    if (widget.isVisible()) showing.push_back(&widget);
  }
  return showing;
}

std::vector<QWidget*> WindowWalk::Reached(QWidget& window) {
  std::vector<QWidget*> reached;
  for (QWidget* next = window.nextInFocusChain(); next != &window;
       next = next->nextInFocusChain()) {
    const bool takesTab =
        (next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr;
    if (takesTab && next->isVisible() && next->isEnabled() && next->window() == &window) {
      reached.push_back(next);
    }
  }
  return reached;
}

}  // namespace wheelwright::testing
