// The two windows beside the main one.
#pragma once

#include "screen/Controls.h"
#include "screen/Desktop.h"
#include "screen/Lists.h"

namespace wheelwright {

// The list of load problems. Created once, then only hidden and shown.
struct FrmError : Window {
  FrmError();

  ReportList lstErrors{*this, "lstErrors"};
  Button cmdClose{*this, "cmdClose"};
};

// The choice of the vehicles to export.
struct FrmExport : Window {
  FrmExport();

  Label lblExportCar{*this, "lblExportCar"};
  Label lblExport{*this, "lblExport"};
  MarkList lst1{*this, "lst1", Order::Sorted};
  MarkList lst2{*this, "lst2", Order::Sorted};
  Button cmdAdd{*this, "cmdAdd"};
  Button cmdDel{*this, "cmdDel"};
  Button cmdAddAll{*this, "cmdAddAll"};
  Button cmdDelAll{*this, "cmdDelAll"};
  Button cmdExport{*this, "cmdExport"};
  Button cmdClose{*this, "cmdClose"};
  Button Spez{*this, "Spez"};
};

}  // namespace wheelwright
