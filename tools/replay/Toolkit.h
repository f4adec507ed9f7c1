// The window toolkit, ready for real windows with or without a display.
#pragma once

#include <array>
#include <memory>

#include <QApplication>

namespace wheelwright::replay {

// From now on the toolkit keeps to itself what says nothing about the program: what its offscreen platform
// can't do, where it keeps its own files, and that a picture was too large.
void KeepToolkitQuiet();

class Toolkit {
 public:
  // Without a display the windows stand on the toolkit's offscreen platform. `dark` gives
  // them the colours of a dark desktop instead of the system's.
  explicit Toolkit(bool dark = false);
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;

 private:
  // The toolkit keeps pointers to these.
  std::array<char, 19> name_{"wheelwright-replay"};
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  int argumentCount_ = 1;
  std::unique_ptr<QApplication> application_;
};

}  // namespace wheelwright::replay
