// The mirror of a tab group.
#pragma once

#include "forms/qt/Mirror.h"
#include "forms/qt/SpokenCaption.h"
#include "screen/Controls.h"

#include <vector>

#include <QTabWidget>

namespace wheelwright {

class TabGroupMirror : public Mirror {
 public:
  TabGroupMirror(TabGroup& group, EventEdge& edge, QWidget* parent);

  QTabWidget& Tabs() const { return widget_; }
  // The empty widget of a page, for its controls to be laid out on.
  QWidget& Page(int tab) const { return *widget_.widget(tab); }
  // Makes a tab's caption the name of an input on its page.
  void Name(int tab, QWidget& input);

 protected:
  void Follow(Aspect aspect) override;

 private:
  void Clicked(int tab);
  QString Meant(int tab) const;

  TabGroup& group_;
  QTabWidget& widget_;
  std::vector<SpokenCaption> spoken_;
};

}  // namespace wheelwright
