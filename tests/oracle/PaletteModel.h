// The two pages of the colour file once more: as plain as their description, on plain lists. The
// laws play the same steps on the model and on the program.
#pragma once

#include "core/Records.h"
#include "support/TestSession.h"

#include <array>
#include <string>
#include <vector>

namespace wheelwright::testing {

// The steps throw what the program's own throw.
class PaletteModel {
 public:
  // As a load leaves it, with this vehicle chosen.
  PaletteModel(std::vector<ColorEntry> itsColors, std::vector<CarColorEntry> itsCarColors,
               const std::string& vehicle);

  void ShowVehicle(const std::string& vehicle);

  void ClickColor(int row);
  void MoveBar(std::size_t bar, int value);
  void TypeName(const std::string& text);
  void AddColor();
  void DeleteColor();  // with the answer Yes

  void LeavePalettePage();
  void ChooseFirst(int row);
  void ChooseSecond(int row);
  void ClickPair(int row);
  void AddPair();
  void RemovePair();  // with the answer Yes

  // All that the model knows, in a form that a failure shows well.
  std::string State() const;

  std::vector<std::string> colorRows;
  std::vector<std::string> pairRows;
  std::vector<std::string> pickRows;

 private:
  ColorEntry& ColorAt(int position);
  CarColorEntry& Current() { return carColors_.at(static_cast<std::size_t>(current_)); }
  void ShowChosenColor();
  void Relabel();

  std::vector<ColorEntry> colors_;
  std::vector<CarColorEntry> carColors_;
  int current_ = 0;
  int colorRow_ = -1;
  int pairRow_ = -1;
  int firstRow_ = -1;
  int secondRow_ = -1;
  std::string name_;
  std::array<int, 3> bars_{};
  std::vector<std::string> shown_;
  bool isSaved_ = true;
};

// The same of a session that has a colour file open.
std::string StateOf(const TestSession& test);

}  // namespace wheelwright::testing
