// What a caption tells assistive technology about the widgets it belongs to.
#pragma once

#include <vector>

#include <QString>
#include <QWidget>

namespace wheelwright {

class SpokenCaption {
 public:
  // The widgets outlive the last call of Say.
  void AddNamed(QWidget& widget);
  void AddDescribed(QWidget& widget);

  // Gives the caption, as it is read on screen, to all of them.
  void Say(const QString& caption);

 private:
  QString caption_;
  std::vector<QWidget*> named_;
  std::vector<QWidget*> described_;
};

}  // namespace wheelwright
