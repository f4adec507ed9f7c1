// Boxes, pointer and shell as Qt reaches them, and what the edge shows at an unhappy end.
#include "core/Failure.h"
#include "forms/qt/ModalHand.h"
#include "forms/qt/system/QtPorts.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

constexpr const char* kOddText = "<b>x</b> R&D %1\r\n&lt;";
constexpr const char* kOddTextShown = "<b>x</b> R&D %1\n&lt;";

// Looks at a box and presses one of its buttons; Escape stands for the close box.
class BoxHand : public ModalHand {
 public:
  BoxHand(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButton button)
      : ModalHand([=](QWidget& modal) {
          auto& box = static_cast<QMessageBox&>(modal);
          EXPECT_EQ(box.icon(), icon);
          EXPECT_EQ(box.text(), text);
          EXPECT_EQ(box.windowTitle(), "Wheelwright");
          EXPECT_EQ(QApplication::overrideCursor(), nullptr);
          EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->textFormat(), Qt::PlainText);
          if (button == QMessageBox::Escape) {
            box.close();
          } else {
            box.button(button)->click();
          }
        }) {}
};

TEST(QtDesktopTest, BoxesShowTheirTextsAsTheyAre) {
  QtDesktop desktop;
  {
    const BoxHand hand(QMessageBox::Information, kOddTextShown, QMessageBox::Ok);
    desktop.ShowInformation(kOddText);
  }
  const BoxHand hand(QMessageBox::Critical, kOddTextShown, QMessageBox::Ok);
  desktop.ShowError(kOddText);
}

TEST(QtDesktopTest, AQuestionIsTrueForYesAlone) {
  QtDesktop desktop;
  {
    const BoxHand hand(QMessageBox::Question, kOddTextShown, QMessageBox::Yes);
    EXPECT_TRUE(desktop.AskQuestion(kOddText));
  }
  {
    const BoxHand hand(QMessageBox::Question, kOddTextShown, QMessageBox::No);
    EXPECT_FALSE(desktop.AskQuestion(kOddText));
  }
  {
    const BoxHand hand(QMessageBox::NoIcon, kOddTextShown, QMessageBox::Yes);
    EXPECT_TRUE(desktop.AskYesNo(kOddText));
  }
  const BoxHand hand(QMessageBox::NoIcon, kOddTextShown, QMessageBox::Escape);
  EXPECT_FALSE(desktop.AskYesNo(kOddText));
}

// Neither loses what a yes would lose.
TEST(QtDesktopTest, EnterAndEscapeAnswerEveryQuestionWithNo) {
  QtDesktop desktop;
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    const auto press = [key](QWidget& box) { QTest::keyClick(box.windowHandle(), key); };
    {
      const ModalHand hand(press);
      EXPECT_FALSE(desktop.AskQuestion(kOddText));
    }
    const ModalHand hand(press);
    EXPECT_FALSE(desktop.AskYesNo(kOddText));
  }
}

TEST(QtDesktopTest, TheToolkitSpeaksTheChosenLanguageWhereItCan) {
  QtDesktop desktop;
  const std::vector<QStringList> languages = {{"Deutsch", "&Ja", "&Nein"},   {"Español", "&Sí", "&No"},
                                              {"Français", "&Oui", "&Non"},  {"Italiano", "&Sì", "&No"},
                                              {"No such", "&Yes", "&No"},    {"Nederlands", "&Ja", "&Nee"},
                                              {"Português", "&Sim", "&Não"}, {"English", "&Yes", "&No"}};
  for (const QStringList& language : languages) {
    desktop.SetLanguage(language[0].toStdString());
    const ModalHand hand([&](QWidget& modal) {
      const auto& box = static_cast<QMessageBox&>(modal);
      EXPECT_EQ(box.button(QMessageBox::Yes)->text(), language[1]);
      EXPECT_EQ(box.button(QMessageBox::No)->text(), language[2]);
      modal.close();
    });
    desktop.AskQuestion("");
  }
}

TEST(QtDesktopTest, WithoutAnActiveWindowABoxBelongsToTheOneThatOwnsTheOthersIfItIsShown) {
  QWidget owner;
  QWidget owned(&owner, Qt::Window);
  const auto show = [](QWidget& window) {
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.show();
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
  };
  const auto ownerOfBox = [] {
    QWidget* found = nullptr;
    const ModalHand hand([&](QWidget& modal) {
      found = modal.parentWidget();
      modal.close();
    });
    QtDesktop().ShowInformation("");
    return found;
  };
  show(owned);
  EXPECT_EQ(ownerOfBox(), nullptr);
  show(owner);
  EXPECT_EQ(ownerOfBox(), &owner);
}

TEST(QtDesktopTest, ThePointerIsSetOnceAndGivenBack) {
  QtDesktop desktop;
  desktop.SetPointer(Pointer::Normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  desktop.SetPointer(Pointer::Hourglass);
  desktop.SetPointer(Pointer::Hourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  desktop.SetPointer(Pointer::Normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// Takes what would go to the desktop's own handler of files.
class ShellHand : public QObject {
  Q_OBJECT

 public:
  ShellHand() { QDesktopServices::setUrlHandler("file", this, "Take"); }
  ~ShellHand() override { QDesktopServices::unsetUrlHandler("file"); }

  Q_INVOKABLE void Take(const QUrl& url) { opened = url.toLocalFile(); }

  QString opened;
};

TEST(QtDesktopTest, AFileWithAnyNameGoesToTheShell) {
  ShellHand hand;
  QtDesktop().OpenWithShell("/a b/R&D #1 100%25 \xC3\xA4?.htm");
  EXPECT_EQ(hand.opened, QString::fromUtf8("/a b/R&D #1 100%25 \xC3\xA4?.htm"));
}

TEST(QtEdgeTest, AFailureThatNothingCaughtIsShownAndEndsTheEvents) {
  QtEdge edge;
  QtDesktop().SetPointer(Pointer::Hourglass);
  const BoxHand hand(QMessageBox::Critical, "Run-time error 9\nSubscript out of range", QMessageBox::Ok);
  QTimer::singleShot(0, [&] { edge.Enter([] { throw Failure(FailureNumber::SubscriptOutOfRange); }); });
  EXPECT_EQ(QApplication::exec(), 1);
  EXPECT_TRUE(edge.HasFailed());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  bool ran = false;
  edge.Enter([&] { ran = true; });
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace wheelwright::testing

#include "QtDesktopTest.moc"
