#include "forms/qt/TabGroupMirror.h"

#include "forms/qt/QtText.h"

#include <QSignalBlocker>

namespace wheelwright {

TabGroupMirror::TabGroupMirror(TabGroup& group, EventEdge& edge, QWidget* parent)
    : Mirror(group, edge, *new QTabWidget(parent)),
      group_(group),
      widget_(static_cast<QTabWidget&>(Widget())),
      spoken_(group.Tabs().size()) {
  widget_.setUsesScrollButtons(false);
  for (std::size_t tab = 0; tab < group.Tabs().size(); ++tab) widget_.addTab(new QWidget, "");
  FollowAll();
  QObject::connect(&widget_, &QTabWidget::currentChanged, Receiver(),
                   [this](int tab) { Clicked(tab); });
}

void TabGroupMirror::Name(int tab, QWidget& input) {
  spoken_.at(static_cast<std::size_t>(tab)).AddNamed(input);
}

void TabGroupMirror::Clicked(int tab) {
  ByHand([&] { group_.ClickByHand(tab); });
  Follow(Aspect::Choice);
}

// A tab reads marks; the plain captions are as they are read on screen.
QString TabGroupMirror::Meant(int tab) const {
  return WithDoubledMarks(ShownCaption(group_.Tabs().at(static_cast<std::size_t>(tab))));
}

void TabGroupMirror::Follow(Aspect aspect) {
  const QSignalBlocker blocker(widget_);
  if (aspect == Aspect::Choice) widget_.setCurrentIndex(group_.Tab());
  if (aspect != Aspect::Content) return;
  for (int tab = 0; tab < widget_.count(); ++tab) {
    const auto index = static_cast<std::size_t>(tab);
    widget_.setTabText(tab, Meant(tab));
    spoken_[index].Say(ShownCaption(group_.Tabs()[index]));
  }
}

}  // namespace wheelwright
