// The mirror of a list in report form.
#pragma once

#include "forms/qt/mirrors/Mirror.h"
#include "screen/Controls.h"

#include <QTreeView>

namespace wheelwright {

class ReportListMirror : public MirrorOf<ReportList, QTreeView> {
 public:
  ReportListMirror(ReportList& list, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;
};

}  // namespace wheelwright
