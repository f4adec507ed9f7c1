#include "support/Exchange.h"

namespace wheelwright::testing {

void ChooseAllForExport(TestSession& test) {
  test.main.cmdExportCar.ClickByHand();
  test.exporter.cmdAddAll.ClickByHand();
}

std::string ExportChosen(TestSession& test) {
  test.desktop.choices.push_back(FileChoice{kExportPath, {}});
  test.exporter.cmdExport.ClickByHand();
  return test.Disk(kExportPath);
}

void Import(TestSession& test, const std::string& text) {
  test.files.contents[kImportPath] = text;
  test.desktop.shown.clear();
  test.desktop.choices.push_back(FileChoice{kImportPath, {}});
  test.main.cmdImportCar.ClickByHand();
}

}  // namespace wheelwright::testing
