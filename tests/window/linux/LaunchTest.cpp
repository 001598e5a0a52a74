// One press of the button, as the window shows it.

#include <gmock/gmock.h>

#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

using testing::ElementsAre;

/// Notes in order which controls are enabled and disabled.
class Availabilities : public QObject {
 public:
  void watch(QWidget& widget, const std::string& name) {
    widget.installEventFilter(this);
    names_[&widget] = name;
  }

  std::vector<std::string> noted;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::EnabledChange) {
      const bool enabled = qobject_cast<QWidget*>(object)->isEnabled();
      noted.push_back(names_[object] + (enabled ? " on" : " off"));
    }
    return false;
  }

 private:
  std::map<QObject*, std::string> names_;
};

class LaunchTest : public WindowTest {
 protected:
  void openWithLocation() {
    open();
    enterLocation();
  }

  std::vector<std::string> startedWith() const { return world_.starter.starts.at(0).arguments; }
};

TEST_F(LaunchTest, AClickStartsTheViewer) {
  world_.resolver.answer = {{ipv4("10.1.2.3")}};
  openWithLocation();
  QTest::mouseClick(&button(), Qt::LeftButton);
  finishLaunch();
  EXPECT_THAT(startedWith(), ElementsAre("-l", "server.example", "-i", "10.1.2.3", "-r",
                                         *world_.bundle.resources));
}

TEST_F(LaunchTest, ReturnInEitherFieldIsAPress) {
  openWithLocation();
  ipAddress().setFocus();
  type("10.0.0.5");
  press(Qt::Key_Return);
  finishLaunch();
  EXPECT_EQ(world_.starter.starts.size(), 1);
  location().setFocus();
  press(Qt::Key_Enter);
  finishLaunch();
  EXPECT_EQ(world_.starter.starts.size(), 2);
}

TEST_F(LaunchTest, SpaceAndReturnPressTheFocusedButton) {
  world_.resolver.answer = {{ipv4("10.1.2.3")}};
  openWithLocation();
  button().setFocus();
  press(Qt::Key_Space);
  finishLaunch();
  press(Qt::Key_Return);
  finishLaunch();
  EXPECT_EQ(world_.starter.starts.size(), 2);
}

TEST_F(LaunchTest, ReturnIsNoPressWhileTheButtonIsDisabled) {
  open();
  enterLocation("server");
  press(Qt::Key_Return);
  finishLaunch();
  EXPECT_TRUE(world_.starter.starts.empty());
  EXPECT_TRUE(location().isEnabled());
}

TEST_F(LaunchTest, LocksTheFormDuringTheLookup) {
  world_.resolver.gated = true;
  openWithLocation();
  Availabilities availabilities;
  availabilities.watch(button(), "button");
  availabilities.watch(location(), "location");
  press(Qt::Key_Return);
  EXPECT_THAT(availabilities.noted, ElementsAre("button off", "location off"));
  EXPECT_EQ(status(), "Looking up IP Address for the Vorx");
  EXPECT_TRUE(ipAddress().isEnabled());
  EXPECT_EQ(button().text(), QStringLiteral("Launch"));

  world_.resolver.answer = {{ipv4("10.1.2.3")}};
  world_.resolver.gate.release();
  finishLaunch();
  EXPECT_THAT(availabilities.noted,
              ElementsAre("button off", "location off", "location on", "button on"));
  EXPECT_EQ(status(), "Press launch button to start remote control");
}

TEST_F(LaunchTest, EditsDuringTheLookupDoNotReachIt) {
  world_.resolver.gated = true;
  openWithLocation();
  press(Qt::Key_Return);
  ipAddress().setFocus();
  type("10.0.0.5");
  world_.resolver.answer = {{ipv4("10.1.2.3")}};
  world_.resolver.gate.release();
  finishLaunch();
  EXPECT_EQ(startedWith().at(3), "10.1.2.3");
}

TEST_F(LaunchTest, AnAlertTellsOfAHostThatIsNotResolved) {
  openWithLocation();
  bool locked = false;
  QString shown;
  whenAlertIsUp([&](QMessageBox& alert) {
    locked = !location().isEnabled() && !button().isEnabled();
    shown = alert.text() + u'|' + alert.informativeText();
    EXPECT_EQ(alert.windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(alert.parentWidget(), window_.get());
    EXPECT_TRUE(alert.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(status(), "Enter valid Vorx location to enable launch button");
  });
  press(Qt::Key_Return);
  finishLaunch();
  EXPECT_TRUE(locked);
  EXPECT_EQ(shown, QStringLiteral("Failed to look up IP address for 'server.example'|"
                                  "Please check you have entered the correct address"));
  EXPECT_TRUE(location().isEnabled());
  EXPECT_FALSE(button().isEnabled());
  EXPECT_EQ(status(), "Enter valid Vorx location to enable launch button");
  EXPECT_TRUE(world_.starter.starts.empty());
}

TEST_F(LaunchTest, TheAlertsOneButtonHasTheGivenTitle) {
  world_.translations.table["OK"] = "So & so";
  openWithLocation();
  QStringList titles;
  whenAlertIsUp([&](QMessageBox& alert) {
    for (const QAbstractButton* each : alert.buttons()) titles << each->text();
  });
  press(Qt::Key_Return);
  finishLaunch();
  EXPECT_EQ(titles, QStringList(QStringLiteral("So && so")));
}

TEST_F(LaunchTest, ReturnAndEscapeDismissTheAlert) {
  openWithLocation();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    bool stillUp = true;
    whenAlertIsUp([&](QMessageBox& alert) {
      QTest::keyClick(&alert, key);
      stillUp = alert.isVisible();
    });
    type("a");
    press(Qt::Key_Return);
    finishLaunch();
    EXPECT_FALSE(stillUp);
  }
}

TEST_F(LaunchTest, TheAlertShowsMarkupAsItIsTyped) {
  open();
  QString shown;
  whenAlertIsUp([&](QMessageBox& alert) {
    shown = alert.text();
    EXPECT_EQ(alert.textFormat(), Qt::PlainText);
  });
  window_->showAlert({.message = "<b>h</b>", .informative = "i", .button = "OK"});
  EXPECT_EQ(shown, QStringLiteral("<b>h</b>"));
}

TEST_F(LaunchTest, TheAlertShowsALongHostWhole) {
  open();
  const std::string host(253, 'a');
  QString shown;
  whenAlertIsUp([&](QMessageBox& alert) {
    shown = alert.text();
    const auto* label = alert.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const QRect needed =
        label->fontMetrics().boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text());
    EXPECT_LE(needed.width(), label->width());
    EXPECT_LE(needed.height(), label->height());
    EXPECT_LE(alert.width(), alert.screen()->availableGeometry().width());
  });
  window_->showAlert({.message = host, .informative = "i", .button = "OK"});
  EXPECT_EQ(shown.remove(QChar(0x200B)).toStdString(), host);
}

TEST_F(LaunchTest, AMinimizedWindowComesBackForTheAlert) {
  open();
  window_->showMinimized();
  bool minimized = true;
  whenAlertIsUp([&](QMessageBox&) { minimized = window_->isMinimized(); });
  window_->showAlert({.message = "m", .informative = "i", .button = "OK"});
  EXPECT_FALSE(minimized);
}

}  // namespace
}  // namespace launcher
