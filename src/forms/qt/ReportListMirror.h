// The mirror of a list in report form.
#pragma once

#include "forms/qt/Mirror.h"
#include "forms/qt/ReportModel.h"
#include "screen/Controls.h"

#include <QTreeView>

namespace wheelwright {

class ReportListMirror : public Mirror {
 public:
  ReportListMirror(ReportList& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  QTreeView& widget_;
  ReportModel& model_;
};

}  // namespace wheelwright
