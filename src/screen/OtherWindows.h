// The two windows beside the main one.
#pragma once

#include "screen/Controls.h"
#include "screen/Desktop.h"
#include "screen/Lists.h"

namespace wheelwright {

// The list of load problems. Created once, then only hidden and shown.
struct FrmError : Window {
  FrmError();

  ReportList lstErrors{*this, "lstErrors", {{{"Auto", 107}, {"Parameter", 108}, {"Error", 109}}}};
  Button cmdClose{*this, "cmdClose", {"Schliessen", 106}};
};

// The choice of the vehicles to export.
struct FrmExport : Window {
  FrmExport();

  Label lblExportCar{*this, "lblExportCar", {"Verfügbare Autos", 110}};
  Label lblExport{*this, "lblExport", {"Exportieren", 111}};
  MarkList lst1{*this, "lst1", Order::Sorted};
  MarkList lst2{*this, "lst2", Order::Sorted};
  Button cmdAdd{*this, "cmdAdd", {">"}};
  Button cmdDel{*this, "cmdDel", {"<"}};
  Button cmdAddAll{*this, "cmdAddAll", {">>"}};
  Button cmdDelAll{*this, "cmdDelAll", {"<<"}};
  Button cmdExport{*this, "cmdExport", {"Export...", 112}};
  Button cmdClose{*this, "cmdClose", {"Schliessen", 106}};
  Button Spez{*this, "Spez", {"Spez"}};
};

}  // namespace wheelwright
