// The real window of the export.
#pragma once

#include "forms/qt/MirrorSet.h"
#include "forms/qt/WindowShell.h"
#include "screen/OtherWindows.h"

namespace wheelwright {

class ExportWindow : public WindowShell {
 public:
  ExportWindow(FrmExport& exporter, EventEdge& edge, MirrorSet& mirrors, QWidget* owner);
};

}  // namespace wheelwright
