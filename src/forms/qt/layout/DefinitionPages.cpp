#include "forms/qt/layout/FieldRows.h"
#include "forms/qt/layout/Layouts.h"

namespace wheelwright {

void BuildDefinitionPages(FrmMain& main, TabGroupMirror& group, MirrorSet& mirrors) {
  for (const DefinitionTab tab : {kReferencesTab, kPropertiesTab}) {
    BuildRows(main, kDefinitionFields, tab, group.Page(tab), mirrors);
  }
  BuildPicturePage(group.Page(kDefinitionPictureTab), main.picFrame2, main.picCar2, mirrors);
}

}  // namespace wheelwright
