// A person at the next box or dialog that comes up and waits.
#pragma once

#include "forms/qt/QtPrinters.h"

#include <functional>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace wheelwright::testing {

class ModalHand {
 public:
  // Does this to the next modal widget as soon as it is up. The test fails if there is none by the
  // time the hand goes, and if one is still up or comes up after that, which is closed.
  explicit ModalHand(std::function<void(QWidget&)> action) : action_(std::move(action)) {
    QObject::connect(&first_, &QTimer::timeout, &first_, [this] { Act(); });
    QObject::connect(&next_, &QTimer::timeout, &next_, [this] { CloseWhatIsUp(); });
    first_.start(1);
  }
  ModalHand(const ModalHand&) = delete;
  ModalHand& operator=(const ModalHand&) = delete;
  ~ModalHand() { EXPECT_FALSE(first_.isActive()) << "nothing came up"; }

 private:
  static QWidget* WhatIsUp() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->isVisible() ? modal : nullptr;
  }

  void Act() {
    QWidget* modal = WhatIsUp();
    if (modal == nullptr) return;
    first_.stop();
    next_.start(1);
    action_(*modal);
  }

  void CloseWhatIsUp() {
    QWidget* modal = WhatIsUp();
    if (modal == nullptr) return;
    ADD_FAILURE() << "still up: " << modal->windowTitle().toStdString();
    modal->close();
  }

  std::function<void(QWidget&)> action_;
  QTimer first_;
  // Another timer, as none fires while its own slot runs.
  QTimer next_;
};

}  // namespace wheelwright::testing
