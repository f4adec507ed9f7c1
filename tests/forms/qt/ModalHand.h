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
  // time the hand goes.
  explicit ModalHand(std::function<void(QWidget&)> action) : action_(std::move(action)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(1);
  }
  ModalHand(const ModalHand&) = delete;
  ModalHand& operator=(const ModalHand&) = delete;
  ~ModalHand() { EXPECT_FALSE(timer_.isActive()) << "nothing came up"; }

 private:
  void Look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible()) return;
    timer_.stop();
    action_(*modal);
  }

  std::function<void(QWidget&)> action_;
  QTimer timer_;
};

}  // namespace wheelwright::testing
