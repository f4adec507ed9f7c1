// A plugin that the toolkit loads into the program as it was built, for a test to see and to use
// its windows. An order is a line on standard input: a verb and what it is about. Each is answered
// by a line on standard output that says what can be seen then, also while a box or a dialog waits
// inside the order.
//
//   see NAME        nothing is done; "front" is what has to be answered or used next, "focus" what
//                   has the keyboard
//   click NAME      the left mouse button in the middle of the widget of that name
//   key KEYS        "ctrl+s", to the window that has the focus
//   type TEXT
//   close NAME      as by the window's own close button
//   quit            as the desktop does at the end of a user's session
#include <clocale>
#include <iostream>
#include <string>

#include <QApplication>
#include <QComboBox>
#include <QGenericPlugin>
#include <QIcon>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>
#include <QSocketNotifier>
#include <QWidget>
#include <QWindow>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

// What has to be answered before anything else, or else the window that is used.
QWidget* Front() {
  if (QApplication::activeModalWidget() != nullptr) return QApplication::activeModalWidget();
  if (QApplication::activeWindow() != nullptr) return QApplication::activeWindow();
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible()) return window;
  return nullptr;
}

// As a window manager does. The toolkit leaves a window inactive that got the focus while another
// one's drop-down list was up.
void ActivateFront() {
  QWidget* front = Front();
  if (front == nullptr || front->isActiveWindow()) return;
  front->activateWindow();
  if (front->windowHandle()->isActive()) QApplication::setActiveWindow(front);
}

QWidget* Find(const QString& name) {
  if (name == "front") return Front();
  if (name == "focus") return QApplication::focusWidget();
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name && widget->isVisible()) return widget;
  return nullptr;
}

QJsonObject ApplicationSeen() {
  QJsonArray icons;
  for (const QSize size : QApplication::windowIcon().availableSizes()) icons.append(size.width());
  return {{"name", QCoreApplication::applicationName()},
          {"desktop", QGuiApplication::desktopFileName()},
          {"numbers", std::setlocale(LC_NUMERIC, nullptr)},
          {"icons", icons}};
}

QJsonArray RowsOf(const QWidget& widget) {
  QJsonArray rows;
  if (const auto* list = qobject_cast<const QComboBox*>(&widget))
    for (int row = 0; row < list->count(); ++row) rows.append(list->itemText(row));
  return rows;
}

QJsonObject Seen(const QString& name) {
  if (name == "application") return ApplicationSeen();
  const QWidget* widget = Find(name);
  if (widget == nullptr) return {};
  const QWidget* owner = widget->window()->parentWidget();
  const QPoint middle = widget->mapToGlobal(widget->rect().center());
  QVariant text = widget->property("text");
  if (!text.isValid()) text = widget->property("currentText");
  return {{"name", widget->objectName()},
          {"title", widget->windowTitle()},
          {"text", text.toString()},
          {"rows", RowsOf(*widget)},
          {"owner", owner == nullptr ? "" : owner->window()->objectName()},
          {"active", widget->isActiveWindow()},
          {"place", QJsonArray{middle.x(), middle.y()}}};
}

void Show(const QJsonObject& seen) {
  std::cout << QJsonDocument(seen).toJson(QJsonDocument::Compact).toStdString() << std::endl;
}

class Person : public QObject {
 public:
  Person() {
    connect(&orders_, &QSocketNotifier::activated, this, [this] { Take(); });
  }

 private:
  void Take() {
    std::string line;
    // The test is gone, and nobody else would end the program.
    if (!std::getline(std::cin, line)) std::_Exit(1);
    const QString order = QString::fromStdString(line);
    const QString about = order.section(' ', 1);
    Do(order.section(' ', 0, 0), about);
    Next([about] {
      ActivateFront();
      Show(Seen(about));
    });
  }

  void Do(const QString& verb, const QString& about) {
    if (verb == "click") Click(Find(about));
    if (verb == "key") Press(QKeySequence::fromString(about)[0]);
    if (verb == "type")
      for (const QChar letter : about) Type(letter.toLatin1());
    if (verb == "close") Next([about] { Find(about)->windowHandle()->close(); });
    if (verb == "quit") Next([] { QCoreApplication::quit(); });
  }

  // An act may wait for a box to be answered; what is next is then done meanwhile.
  template <class Act>
  void Next(Act act) {
    QMetaObject::invokeMethod(this, act, Qt::QueuedConnection);
  }

  void Click(QWidget* widget) {
    if (widget == nullptr) return;
    QWindow* window = widget->window()->windowHandle();
    const QPoint place = widget->mapTo(widget->window(), widget->rect().center());
    Next([=] { QTest::mousePress(window, Qt::LeftButton, {}, place); });
    Next([=] { QTest::mouseRelease(window, Qt::LeftButton, {}, place); });
  }

  void Press(QKeyCombination keys) {
    Next([=] {
      if (QWindow* window = QGuiApplication::focusWindow())
        QTest::keyClick(window, keys.key(), keys.keyboardModifiers());
    });
  }

  void Type(char letter) {
    Next([=] {
      if (QWindow* window = QGuiApplication::focusWindow()) QTest::keyClick(window, letter);
    });
  }

  QSocketNotifier orders_{0, QSocketNotifier::Read};
};

}  // namespace

class PersonPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "person.json")

 public:
  QObject* create(const QString&, const QString&) override { return new Person; }
};

}  // namespace wheelwright::testing

#include "Person.moc"
