#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "controller/linux/MainWindow.h"
#include "tests/window/linux/World.h"

namespace launcher {

/// Handles events until the condition holds, for at most a minute. Returns whether it held in time.
inline bool eventually(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 60'000);
}

/// Handles the events that have come already, and the work that was posted.
inline void settle(WorkQueue& mainQueue) {
  bool reached = false;
  mainQueue.add([&] { reached = true; });
  EXPECT_TRUE(eventually([&] { return reached; }));
}

/// A launcher's window on a screen that nobody sees, in a world of doubles.
class WindowTest : public testing::Test {
 protected:
  void TearDown() override { close(); }

  /// Shows the window; it is the active one, and its search is over.
  void open() {
    window_ = MainWindow::make(world_.services());
    watched_ = window_.get();
    window_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    EXPECT_TRUE(eventually([this] { return window_.use_count() == 1; }));
    settle(*world_.mainQueue);
  }

  /// Lets go of the window, and waits for the work that holds it.
  void close() {
    window_.reset();
    EXPECT_TRUE(eventually([this] { return watched_.isNull(); }));
  }

  QLineEdit& location() const { return *window_->findChildren<QLineEdit*>().at(0); }
  QLineEdit& ipAddress() const { return *window_->findChildren<QLineEdit*>().at(1); }
  QPushButton& button() const { return *window_->findChild<QPushButton*>(); }

  QLabel& statusLine() const {
    const auto labels = window_->findChildren<QLabel*>();
    return **std::ranges::find_if(labels, [](const QLabel* label) { return label->wordWrap(); });
  }

  std::string status() const { return statusLine().text().toStdString(); }
  static QWidget* focus() { return QApplication::focusWidget(); }

  /// Types into what has the focus.
  static void type(std::string_view text) {
    for (const char key : text) QTest::keyClick(focusedWindow(), key);
  }
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(focusedWindow(), key, modifiers);
  }

  /// A location that can be launched, typed by a person.
  void enterLocation(const char* text = "https://server.example") {
    location().setFocus();
    location().selectAll();
    type(text);
  }

  /// Runs `during` as soon as an alert is up, which then is dismissed.
  void whenAlertIsUp(std::function<void(QMessageBox& alert)> during) {
    auto* timer = new QTimer(window_.get());
    QObject::connect(timer, &QTimer::timeout, [timer, during = std::move(during)] {
      auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (alert == nullptr) return;
      timer->stop();
      during(*alert);
      alert->close();
    });
    timer->start(1);
  }

  /// Waits until the press's work has ended and what it posted has run. Then the window is the
  /// active one again, as a window manager makes it after an alert.
  void finishLaunch() {
    EXPECT_TRUE(eventually([this] { return window_.use_count() == 1; }));
    activate(*window_);
  }

  static void activate(QWidget& window) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  World world_;
  std::shared_ptr<MainWindow> window_;

 private:
  static QWindow* focusedWindow() { return QGuiApplication::focusWindow(); }

  QPointer<QWidget> watched_;
};

}  // namespace launcher
