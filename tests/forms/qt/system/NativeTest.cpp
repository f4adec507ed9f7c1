// What each system does in its own way: here the common file dialog as Qt's.
#include "core/Failure.h"
#include "forms/qt/ModalHand.h"
#include "forms/qt/system/QtPorts.h"
#include "support/Thrown.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>

namespace wheelwright::testing {
namespace {

constexpr int kCancelled = 32755;

void Leave(QWidget& dialog) { static_cast<QFileDialog&>(dialog).reject(); }

// Types a file's name, chooses a filter, counted from 1, and accepts.
std::function<void(QWidget&)> Types(const QString& file, int filter) {
  return [=](QWidget& modal) {
    auto& dialog = static_cast<QFileDialog&>(modal);
    dialog.selectNameFilter(dialog.nameFilters().at(filter - 1));
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file);
    QMetaObject::invokeMethod(&dialog, "accept");
  };
}

class NativeTest : public ::testing::Test {
 protected:
  NativeTest() {
    dialog.title = "Open <b>[x]</b>";
    dialog.filter = "Handling (*.cfg)|*.cfg|Vehicles|*.ide;*.txt|";
    dialog.filterIndex = 1;
    dialog.file = File("preset.cfg").toStdString();
  }

  QString File(const QString& name) const { return folder.filePath(name); }
  void Make(const QString& name) const {
    QFile file(File(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  QTemporaryDir folder;
  FileDialog dialog;
  QtDesktop desktop;
};

TEST_F(NativeTest, FiltersAreReadInPairs) {
  const auto shown = [this](const char* filter) {
    QStringList filters;
    dialog.filter = filter;
    const ModalHand hand([&](QWidget& modal) {
      filters = static_cast<QFileDialog&>(modal).nameFilters();
      Leave(modal);
    });
    EXPECT_EQ(NumberThrownBy([this] { desktop.ShowOpen(dialog); }), kCancelled);
    return filters;
  };
  EXPECT_EQ(shown("Handling (*.cfg)|*.cfg|Vehicles|*.ide;*.txt|"),
            (QStringList{"Handling (*.cfg)", "Vehicles (*.ide *.txt)"}));
  EXPECT_EQ(shown("All|*.*"), QStringList{"All (*.*)"});
  EXPECT_EQ(shown("lonely"), shown(""));
}

TEST_F(NativeTest, TheDialogComesUpAsItIsSet) {
  Make("preset.cfg");
  dialog.filterIndex = 2;
  const ModalHand hand([this](QWidget& modal) {
    const auto& shown = static_cast<QFileDialog&>(modal);
    EXPECT_EQ(shown.windowTitle(), "Open <b>[x]</b>");
    EXPECT_EQ(shown.selectedNameFilter(), "Vehicles (*.ide *.txt)");
    EXPECT_EQ(shown.directory().absolutePath(), folder.path());
    EXPECT_EQ(shown.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(shown.findChild<QLineEdit*>("fileNameEdit")->text(), "preset.cfg");
    Leave(modal);
  });
  EXPECT_EQ(NumberThrownBy([this] { desktop.ShowOpen(dialog); }), kCancelled);
}

TEST_F(NativeTest, TheChoiceIsFileAndFilterCountedFromOne) {
  Make("mine.ide");
  const ModalHand hand(Types(File("mine.ide"), 2));
  desktop.ShowOpen(dialog);
  EXPECT_EQ(dialog.file, File("mine.ide").toStdString());
  EXPECT_EQ(dialog.filterIndex, 2);
}

TEST_F(NativeTest, AFileThatIsNotThereCanBeChosen) {
  dialog.filterIndex = 2;
  const ModalHand hand(Types(File("missing.cfg"), 1));
  desktop.ShowOpen(dialog);
  EXPECT_EQ(dialog.file, File("missing.cfg").toStdString());
  EXPECT_EQ(dialog.filterIndex, 1);
}

TEST_F(NativeTest, ACancelIsAFailureAndLeavesTheDialogAsItWas) {
  const std::string before = dialog.file;
  const ModalHand hand(Leave);
  EXPECT_EQ(NumberThrownBy([this] { desktop.ShowSave(dialog); }), kCancelled);
  EXPECT_EQ(dialog.file, before);
  EXPECT_EQ(dialog.filterIndex, 1);
}

TEST_F(NativeTest, OnlyTheFlagAsksBeforeAFileIsOverwritten) {
  for (const int flags : {0, static_cast<int>(FileDialog::kOverwritePrompt)}) {
    dialog.flags = flags;
    const ModalHand hand([&](QWidget& modal) {
      const auto& shown = static_cast<QFileDialog&>(modal);
      EXPECT_EQ(shown.acceptMode(), QFileDialog::AcceptSave);
      EXPECT_EQ(shown.testOption(QFileDialog::DontConfirmOverwrite), flags == 0);
      Leave(modal);
    });
    EXPECT_EQ(NumberThrownBy([this] { desktop.ShowSave(dialog); }), kCancelled);
  }
}

TEST_F(NativeTest, TheNextDialogWithoutAFileStartsWhereTheLastWasChosen) {
  FileDialog first;
  first.filter = dialog.filter;
  {
    const ModalHand hand(Types(File("mine.cfg"), 1));
    desktop.ShowOpen(first);
  }
  const QTemporaryDir elsewhere;
  FileDialog others;
  others.file = elsewhere.filePath("other.cfg").toStdString();
  {
    const ModalHand hand(Leave);
    EXPECT_EQ(NumberThrownBy([&] { QtDesktop().ShowOpen(others); }), kCancelled);
  }
  FileDialog next;
  const ModalHand hand([this](QWidget& modal) {
    EXPECT_EQ(static_cast<QFileDialog&>(modal).directory().absolutePath(), folder.path());
    Leave(modal);
  });
  EXPECT_EQ(NumberThrownBy([&] { desktop.ShowSave(next); }), kCancelled);
}

}  // namespace
}  // namespace wheelwright::testing
