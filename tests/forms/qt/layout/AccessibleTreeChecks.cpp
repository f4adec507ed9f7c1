// What assistive technology meets when it walks through a window.
#include "forms/qt/layout/ViewChecks.h"
#include "replay/OnScreen.h"

#include <gtest/gtest.h>
#include <map>

#include <QAccessible>

namespace wheelwright::testing {
namespace {

bool IsList(QAccessible::Role role) {
  return role == QAccessible::List || role == QAccessible::Tree || role == QAccessible::ComboBox;
}

// The objects that show, from the given one downwards; the rows of lists are data.
void Collect(QAccessibleInterface& object, std::vector<QAccessibleInterface*>& found) {
  if (object.state().invisible) return;
  found.push_back(&object);
  if (IsList(object.role())) return;
  for (int i = 0; i < object.childCount(); ++i) {
    if (QAccessibleInterface* child = object.child(i)) Collect(*child, found);
  }
}

std::vector<QAccessibleInterface*> TreeOf(QWidget& window) {
  std::vector<QAccessibleInterface*> found;
  Collect(*QAccessible::queryAccessibleInterface(&window), found);
  return found;
}

// A tab group leaves the keys to its bar, which is spoken of by its tabs.
bool TakesKeys(const QAccessibleInterface& object) {
  const auto* widget = qobject_cast<const QWidget*>(object.object());
  const bool leavesThem = widget != nullptr && widget->focusProxy() != nullptr;
  return object.state().focusable && !object.state().disabled && !leavesThem &&
         object.role() != QAccessible::PageTabList;
}

std::string WhatIs(const QAccessibleInterface& object) {
  const QString widget = object.object() == nullptr ? "part" : object.object()->objectName();
  return (widget + " \"" + SpokenName(object) + "\"").toStdString();
}

// All that a person can read in the window as a caption or a key, as it is read.
QStringList Readable(const View& view) {
  QStringList texts = {QString::fromStdString(view.plain.Title())};
  for (const Control* control : view.plain.Controls()) {
    texts += view.Of(*control).toolTip();
    if (const auto* captioned = dynamic_cast<const Captioned*>(control)) {
      texts += replay::AsRead(captioned->Caption());
    } else if (const auto* group = dynamic_cast<const TabGroup*>(control)) {
      for (const std::string& tab : group->Tabs()) texts += replay::AsWritten(tab);
    }
  }
  return texts;
}

// Two things of one kind, one name and one description couldn't be told from each other.
void ExpectNamesAndDescriptions(const View& view) {
  const QStringList readable = Readable(view);
  std::set<std::tuple<int, QString, QString>> spoken;
  for (const QAccessibleInterface* object : TreeOf(view.window)) {
    if (!TakesKeys(*object)) continue;
    const QString name = SpokenName(*object);
    const QString description = object->text(QAccessible::Description);
    EXPECT_FALSE(name.isEmpty()) << WhatIs(*object);
    EXPECT_TRUE(readable.contains(name)) << WhatIs(*object);
    EXPECT_TRUE(description.isEmpty() || readable.contains(description)) << WhatIs(*object);
    EXPECT_NE(description, name) << WhatIs(*object);
    EXPECT_TRUE(spoken.emplace(object->role(), name, description).second) << WhatIs(*object);
  }
  EXPECT_GT(spoken.size(), 1u);
}

// What a control is for those who don't see it; nothing for what is only looked at.
QAccessible::Role RoleOf(const Control& control) {
  if (dynamic_cast<const Label*>(&control) != nullptr) return QAccessible::StaticText;
  if (dynamic_cast<const Button*>(&control) != nullptr) return QAccessible::Button;
  if (dynamic_cast<const CheckBox*>(&control) != nullptr) return QAccessible::CheckBox;
  if (dynamic_cast<const TextBox*>(&control) != nullptr) return QAccessible::EditableText;
  if (dynamic_cast<const PickList*>(&control) != nullptr) return QAccessible::ComboBox;
  if (dynamic_cast<const RowList*>(&control) != nullptr) return QAccessible::List;
  if (dynamic_cast<const ReportList*>(&control) != nullptr) return QAccessible::Tree;
  if (dynamic_cast<const ScrollBar*>(&control) != nullptr) return QAccessible::ScrollBar;
  return QAccessible::NoRole;
}

void ExpectRoles(const View& view) {
  std::map<QObject*, QAccessible::Role> roles;
  for (const QAccessibleInterface* object : TreeOf(view.window)) {
    roles[object->object()] = object->role();
  }
  for (const Control* control : view.showing) {
    const QAccessible::Role role = RoleOf(*control);
    if (role == QAccessible::NoRole) continue;
    EXPECT_EQ(roles[&view.Of(*control)], role) << control->Name();
  }
}

void ExpectSpokenTabs(const View& view) {
  if (!view.IsMain()) return;
  QStringList spoken;
  for (const QAccessibleInterface* object : TreeOf(view.window)) {
    if (object->role() == QAccessible::PageTab) spoken += SpokenName(*object);
  }
  QStringList captions;
  for (const TabGroup* group : {&view.main.SSTab1, &view.main.SSTab2, &view.main.SSTab3}) {
    if (!group->IsVisible()) continue;
    for (const std::string& caption : group->Tabs()) captions += replay::AsWritten(caption);
  }
  EXPECT_EQ(spoken, captions);
}

}  // namespace

QString SpokenName(const QAccessibleInterface& object) {
  if (object.role() == QAccessible::ComboBox) {
    return static_cast<QWidget*>(object.object())->accessibleName();
  }
  return object.text(QAccessible::Name);
}

const std::vector<ViewCheck> kAccessibleTreeChecks = {
    {"what takes keys is spoken of by what is read on screen, and like nothing else",
     ExpectNamesAndDescriptions},
    {"every control is in the tree in its role", ExpectRoles},
    {"the tabs are spoken of by their captions", ExpectSpokenTabs},
};

}  // namespace wheelwright::testing
