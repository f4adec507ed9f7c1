// What assistive technology meets when it walks through the windows, in every language.
#include "forms/qt/QtText.h"
#include "forms/qt/WindowWalk.h"

#include <set>

#include <QAccessible>

namespace wheelwright::testing {
namespace {

class AccessibleTreeTest : public WindowWalk {
 protected:
  // All that a person can read in the window as a caption, as it is read.
  QStringList Readable(const Window& window);
};

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

// Some systems speak a combo box's text first and find its name by its label.
QString NameOf(const QAccessibleInterface& object) {
  if (object.role() == QAccessible::ComboBox) {
    return static_cast<QWidget*>(object.object())->accessibleName();
  }
  return object.text(QAccessible::Name);
}

std::string WhatIs(const QAccessibleInterface& object) {
  const QString widget = object.object() == nullptr ? "part" : object.object()->objectName();
  return (widget + " \"" + NameOf(object) + "\"").toStdString();
}

QStringList AccessibleTreeTest::Readable(const Window& window) {
  QStringList texts = {ShownTitle(window.Title())};
  for (const Control* control : window.Controls()) {
    if (const auto* captioned = dynamic_cast<const Captioned*>(control)) {
      texts += WithoutMarks(ShownCaption(captioned->Caption()));
    } else if (const auto* group = dynamic_cast<const TabGroup*>(control)) {
      for (const std::string& tab : group->Tabs()) texts += ShownCaption(tab);
    }
  }
  return texts;
}

TEST_P(AccessibleTreeTest, WhatTakesKeysHasANameThatIsReadOnScreen) {
  Walk([this](Window& plain, QWidget& window) {
    const QStringList readable = Readable(plain);
    int inputs = 0;
    for (const QAccessibleInterface* object : TreeOf(window)) {
      if (!TakesKeys(*object)) continue;
      ++inputs;
      EXPECT_FALSE(NameOf(*object).isEmpty()) << WhatIs(*object);
      EXPECT_TRUE(readable.contains(NameOf(*object))) << WhatIs(*object);
    }
    EXPECT_GT(inputs, 1);
  });
}

TEST_P(AccessibleTreeTest, ADescriptionIsReadOnScreenAndSaysMoreThanTheName) {
  Walk([this](Window& plain, QWidget& window) {
    const QStringList readable = Readable(plain);
    for (const QAccessibleInterface* object : TreeOf(window)) {
      const QString description = object->text(QAccessible::Description);
      if (!TakesKeys(*object) || description.isEmpty()) continue;
      EXPECT_TRUE(readable.contains(description)) << WhatIs(*object);
      EXPECT_NE(description, NameOf(*object)) << WhatIs(*object);
    }
  });
}

// Two things of one kind, one name and one description couldn't be told from each other.
TEST_P(AccessibleTreeTest, NoTwoThingsAreSpokenOfAlike) {
  Walk([](Window&, QWidget& window) {
    std::set<std::tuple<int, QString, QString>> spoken;
    for (const QAccessibleInterface* object : TreeOf(window)) {
      if (!TakesKeys(*object)) continue;
      const QString description = object->text(QAccessible::Description);
      EXPECT_TRUE(spoken.emplace(object->role(), NameOf(*object), description).second)
          << WhatIs(*object);
    }
  });
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

TEST_P(AccessibleTreeTest, EveryControlIsInTheTreeInItsRole) {
  Walk([this](Window& plain, QWidget& window) {
    std::map<QObject*, QAccessible::Role> roles;
    for (const QAccessibleInterface* object : TreeOf(window)) {
      roles[object->object()] = object->role();
    }
    for (const Control* control : plain.Controls()) {
      const QAccessible::Role role = RoleOf(*control);
      QWidget& widget = windows.Of(*control);
      if (!widget.isVisible() || role == QAccessible::NoRole) continue;
      EXPECT_EQ(roles[&widget], role) << control->Name();
    }
  });
}

TEST_P(AccessibleTreeTest, TheTabsAreSpokenOfByTheirCaptions) {
  Walk([this](Window& plain, QWidget& window) {
    if (&plain != &main) return;
    QStringList spoken;
    for (const QAccessibleInterface* object : TreeOf(window)) {
      if (object->role() == QAccessible::PageTab) spoken += NameOf(*object);
    }
    QStringList captions;
    for (const TabGroup* group : {&main.SSTab1, &main.SSTab2, &main.SSTab3}) {
      if (!group->IsVisible()) continue;
      for (const std::string& caption : group->Tabs()) captions += ShownCaption(caption);
    }
    EXPECT_EQ(spoken, captions);
  });
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessibleTreeTest,
                         ::testing::Combine(::testing::ValuesIn(Languages()),
                                            ::testing::Values(1.0)),
                         NameOfSetting);

class ExportButtonsTest : public RealWindows {};

TEST_F(ExportButtonsTest, AnArrowIsDescribedByTheListThatItFills) {
  const auto description = [this](const Button& arrow) {
    return windows.Of(arrow).accessibleDescription();
  };
  EXPECT_EQ(description(test.exporter.cmdAdd), "E111");
  EXPECT_EQ(description(test.exporter.cmdAddAll), "E111");
  EXPECT_EQ(description(test.exporter.cmdDel), "E110");
  EXPECT_EQ(description(test.exporter.cmdDelAll), "E110");
}

}  // namespace
}  // namespace wheelwright::testing
