#include "forms/qt/PickBox.h"

#include "forms/qt/WheelGuard.h"

#include <QListView>
#include <QStyledItemDelegate>

namespace wheelwright {

// A menu's delegate would read marks and tabs in the texts of rows.
PickBox::PickBox(QWidget* parent) : QComboBox(parent) {
  constexpr int kRowsDropped = 20;
  constexpr int kCharactersShown = 14;
  setStyle(&style_);
  setItemDelegate(new QStyledItemDelegate(this));
  setMaxVisibleItems(kRowsDropped);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(kCharactersShown);
  static_cast<QListView*>(view())->setUniformItemSizes(true);
  WheelGuard::Guard(*this);
}

int PickBox::ListDropDown::styleHint(StyleHint hint, const QStyleOption* option,
                                     const QWidget* widget, QStyleHintReturn* returned) const {
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace wheelwright
