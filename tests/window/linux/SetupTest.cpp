// How the window comes up.

#include <QAccessible>
#include <QWindow>

#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

class SetupTest : public WindowTest {
 protected:
  static QString spokenName(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
  }
};

TEST_F(SetupTest, FloatsOnEveryShowing) {
  open();
  for (int showing = 0; showing < 2; ++showing) {
    EXPECT_TRUE(window_->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    window_->hide();
    window_->show();
  }
}

TEST_F(SetupTest, RecordsWhetherTheViewerRuns) {
  world_.processes.processes = {processRecord(7, "vexlink")};
  open();
  EXPECT_EQ(world_.launchControl.runningAppPID(), 7);
}

TEST_F(SetupTest, RecordsThatNoViewerRuns) {
  world_.launchControl.setRunningAppPID(7);
  open();
  EXPECT_EQ(world_.launchControl.runningAppPID(), noProcess);
}

TEST_F(SetupTest, ShowsTheLocationThatTheSearchFinds) {
  world_.bundle.folder = "/media/vorx/VorxLauncher.app";
  world_.listing =
      "<plist><dict><key>images</key><array><dict>"
      "<key>image-path</key><string>/home/a/launcher.img</string>"
      "<key>system-entities</key><array><dict>"
      "<key>mount-point</key><string>/media/vorx</string>"
      "</dict></array></dict></array></dict></plist>";
  world_.origin.values["/home/a/launcher.img"] =
      "<plist><array><string>https://h.example/d/launcher.img</string></array></plist>";
  open();
  EXPECT_TRUE(eventually([&] { return !location().text().isEmpty(); }));
  EXPECT_EQ(location().text(), QStringLiteral("https://h.example/d/"));
  EXPECT_TRUE(button().isEnabled());
}

TEST_F(SetupTest, TheFirstKeyGoesIntoTheLocation) {
  open();
  type("a");
  EXPECT_EQ(location().text(), QStringLiteral("a"));
}

TEST_F(SetupTest, TabGoesFromFieldToFieldToButtonAndRound) {
  open();
  enterLocation();
  for (QWidget* next : {static_cast<QWidget*>(&ipAddress()), static_cast<QWidget*>(&button()),
                        static_cast<QWidget*>(&location())}) {
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), next);
  }
}

TEST_F(SetupTest, TheKeysThatCloseWindowsCloseIt) {
  for (const Qt::Key key : {Qt::Key_Q, Qt::Key_W}) {
    open();
    press(key, Qt::ControlModifier);
    EXPECT_FALSE(window_->isVisible());
    close();
  }
}

TEST_F(SetupTest, ShowsEveryTextInThePersonsLanguage) {
  world_.translations.table = {
      {"Vorx Launcher", "T"},
      {"Vorx location", "L & l"},
      {"IP address", "I"},
      {"Optional. Leave it empty to have it looked up.", "O"},
      {"Enter valid Vorx location to enable launch button", "E"},
      {"Launch", "S & t"},
  };
  open();
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("T"));
  EXPECT_EQ(spokenName(location()), QStringLiteral("L & l"));
  EXPECT_EQ(spokenName(ipAddress()), QStringLiteral("I"));
  EXPECT_EQ(spokenName(button()), QStringLiteral("S & t"));
  EXPECT_EQ(status(), "E");
  const auto labels = window_->findChildren<QLabel*>();
  EXPECT_TRUE(std::ranges::any_of(
      labels, [](QLabel* label) { return label->text() == QStringLiteral("O"); }));
}

TEST_F(SetupTest, ShowsExamplesInEmptyFields) {
  open();
  EXPECT_EQ(location().placeholderText(), QStringLiteral("https://vorx.example.com"));
  EXPECT_EQ(ipAddress().placeholderText(), QStringLiteral("10.0.0.5"));
}

TEST_F(SetupTest, OnlyTheWidthCanBeChanged) {
  open();
  const int height = window_->height();
  window_->resize(900, 900);
  EXPECT_EQ(window_->size(), QSize(900, height));
}

}  // namespace
}  // namespace launcher
