// The ground of all plain controls: what a person sees of a window, without any toolkit. The
// program's event semantics live in these classes and so hold with and without a real screen.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace wheelwright {

class Control;

// A plain window: a title (UTF-8) and the controls that its struct declares, in that order.
class Window {
 public:
  Window(std::string name, std::string title) : title_(std::move(title)), name_(std::move(name)) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  const std::string& Name() const { return name_; }
  const std::string& Title() const { return title_; }
  void SetTitle(std::string text);

  bool IsVisible() const { return visible_; }
  void SetVisible(bool visible);

  const std::vector<Control*>& Controls() const { return controls_; }
  // The control of that name, or null.
  Control* Find(const std::string& name) const;

  // Gives all controls the texts of a language table.
  void Translate(std::span<const std::string> lang);

  // The handler of the window's own close box or the system's close request.
  std::function<void()> closeRequested;

  // Told after every change of title or visibility, for whoever mirrors the window on a real
  // screen.
  std::function<void()> notice;

 private:
  friend class Control;

  std::string title_;
  std::string name_;
  bool visible_ = false;
  std::vector<Control*> controls_;
};

// What changed about a control, for whoever mirrors it on a real screen.
enum class Aspect {
  State,    // enabled or visible
  Content,  // text, caption, state, value, colour, picture, tab captions
  Rows,     // the rows of a list as a whole
  Choice,   // the chosen row, the marked rows, the tab in front
  Focus,    // nothing of its own: it shall have the keyboard
};

class Control {
 public:
  // Names are those of the inventory (UTF-8). A control starts enabled and visible.
  Control(Window& window, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& Name() const { return name_; }
  Window& Owner() const { return window_; }

  // The control's own state.
  bool IsEnabled() const { return enabled_; }
  bool IsVisible() const { return visible_; }
  void SetEnabled(bool enabled);
  void SetVisible(bool visible);

  // The state that counts the frames and tab groups around the control, though not which tab lies
  // in front and not whether the window is up.
  bool IsEnabledHere() const;
  bool IsVisibleHere() const;

  void TakeFocus() { Tell(Aspect::Focus); }

  // Puts the entries of a language table in the place of the control's texts.
  virtual void Translate(std::span<const std::string> /*lang*/) {}

  // Puts the control into a frame or onto a page of a tab group.
  void PutInto(Control& container, int page = 0);
  Control* Container() const { return container_; }
  // The page of the tab group that is the direct container.
  int Page() const { return page_; }

  // Told after every change. Only a mirror sets it.
  std::function<void(Aspect)> notice;

 protected:
  void Tell(Aspect aspect) {
    if (notice) notice(aspect);
  }

 private:
  Window& window_;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  Control* container_ = nullptr;
  int page_ = 0;
};

// Runs a handler that may not be wired.
inline void Run(const std::function<void()>& handler) {
  if (handler) handler();
}

}  // namespace wheelwright
