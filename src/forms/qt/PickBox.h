// A combo box that drops down as a list with a scroll bar in every style, also for very many rows.
#pragma once

#include <QComboBox>
#include <QProxyStyle>

namespace wheelwright {

class PickBox : public QComboBox {
 public:
  explicit PickBox(QWidget* parent);

 private:
  class ListDropDown : public QProxyStyle {
   public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
  };

  ListDropDown style_;
};

}  // namespace wheelwright
