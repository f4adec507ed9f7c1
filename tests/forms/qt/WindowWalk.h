// A walk over everything a person can bring on screen: each window, each tab of each kind of file,
// and on them each kind of vehicle, in one language and with one size of the font.
#pragma once

#include "forms/qt/RealWindows.h"

#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include <QFont>

namespace wheelwright::testing {

// Makes the application's font larger for as long as it lives.
class LargerFont {
 public:
  explicit LargerFont(double factor);
  LargerFont(const LargerFont&) = delete;
  LargerFont& operator=(const LargerFont&) = delete;
  ~LargerFont();

 private:
  QFont before_;
};

// The language's name and the factor of the font.
using WalkSetting = std::tuple<std::string, double>;

// All languages that the program comes with.
std::vector<std::string> Languages();
std::string NameOfSetting(const ::testing::TestParamInfo<WalkSetting>& info);

class WindowWalk : private LargerFont,
                   public RealWindows,
                   public ::testing::WithParamInterface<WalkSetting> {
 protected:
  WindowWalk();

  // Calls the visitor for each view: the window, its widget all laid out, and a scoped trace that
  // names the view.
  using Visitor = std::function<void(Window&, QWidget&)>;
  void Walk(const Visitor& visit);

  // The widgets of the controls of this window that show now.
  std::vector<QWidget*> Showing(const Window& window);
  // Those that the Tab key reaches, in its order.
  std::vector<QWidget*> Reached(QWidget& window);

 private:
  void WalkHandling(const Visitor& visit);
  void WalkDefinition(const Visitor& visit);
  void WalkColors(const Visitor& visit);
  void WalkOtherWindows(const Visitor& visit);
  void WalkTabs(TabGroup& group, const std::string& view, const Visitor& visit);
  void Visit(Window& window, const std::string& view, const Visitor& visit);
};

}  // namespace wheelwright::testing
