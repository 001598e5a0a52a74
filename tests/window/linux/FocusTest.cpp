// The keyboard's focus through a launch: what a person types next goes where it went before.

#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

class FocusTest : public WindowTest {
 protected:
  FocusTest() {
    world_.resolver.gated = true;
    world_.resolver.answer = {{ipv4("10.1.2.3")}};
    open();
    enterLocation();
  }

  void finishLookup() {
    world_.resolver.gate.release();
    finishLaunch();
  }

  /// Another window of this program, which is the active one as long as it lives.
  struct OtherWindow : QWidget {
    OtherWindow() {
      show();
      activate(*this);
    }
  };

  void failLookup() {
    world_.resolver.answer.reset();
    whenAlertIsUp([](QMessageBox&) {});
    finishLookup();
  }
};

TEST_F(FocusTest, ComesBackToTheLocationWithItsSelection) {
  location().setSelection(8, 6);
  press(Qt::Key_Return);
  EXPECT_FALSE(location().isEnabled());
  finishLookup();
  EXPECT_EQ(focus(), &location());
  EXPECT_EQ(location().selectedText(), QStringLiteral("server"));
  type("b");
  EXPECT_EQ(location().text(), QStringLiteral("https://b.example"));
}

TEST_F(FocusTest, KeysDuringTheLookupGoNowhere) {
  press(Qt::Key_Return);
  type("10.0.0.5");
  EXPECT_EQ(window_->ipAddress(), "");
  finishLookup();
  EXPECT_EQ(window_->vorxLocation(), "https://server.example");
}

TEST_F(FocusTest, ComesBackThoughTheWindowWasLeftMeanwhile) {
  press(Qt::Key_Return);
  const OtherWindow other;
  activate(*window_);
  finishLookup();
  EXPECT_EQ(focus(), &location());
}

TEST_F(FocusTest, ComesBackThoughTheWindowIsNotActive) {
  press(Qt::Key_Return);
  const OtherWindow other;
  world_.resolver.gate.release();
  EXPECT_TRUE(eventually([&] { return location().isEnabled(); }));
  EXPECT_TRUE(other.isActiveWindow());
  activate(*window_);
  EXPECT_EQ(focus(), &location());
}

TEST_F(FocusTest, StaysWhereThePersonHasGoneMeanwhile) {
  press(Qt::Key_Return);
  press(Qt::Key_Tab);
  EXPECT_EQ(focus(), &ipAddress());
  finishLookup();
  EXPECT_EQ(focus(), &ipAddress());
}

TEST_F(FocusTest, StaysInTheAddressFromWhichThePressCame) {
  ipAddress().setFocus();
  press(Qt::Key_Return);
  finishLookup();
  EXPECT_EQ(focus(), &ipAddress());
}

TEST_F(FocusTest, ComesBackToTheButton) {
  button().setFocus();
  press(Qt::Key_Space);
  finishLookup();
  EXPECT_EQ(focus(), &button());
}

TEST_F(FocusTest, AClickLeavesItInTheField) {
  QTest::mouseClick(&button(), Qt::LeftButton);
  finishLookup();
  EXPECT_EQ(focus(), &location());
}

TEST_F(FocusTest, IsInTheLocationAfterTheAlertWithItsSelection) {
  location().setSelection(8, 6);
  press(Qt::Key_Return);
  failLookup();
  EXPECT_EQ(focus(), &location());
  type("b");
  EXPECT_EQ(location().text(), QStringLiteral("https://b.example"));
  EXPECT_TRUE(button().isEnabled());
}

TEST_F(FocusTest, IsInTheLocationAfterTheAlertWhereverItWas) {
  ipAddress().setFocus();
  press(Qt::Key_Return);
  failLookup();
  EXPECT_EQ(focus(), &location());
  button().setEnabled(true);
  EXPECT_EQ(focus(), &location());
}

TEST_F(FocusTest, IsInTheLocationAfterTheAlertThatAButtonsPressLedTo) {
  button().setFocus();
  press(Qt::Key_Space);
  failLookup();
  EXPECT_EQ(focus(), &location());
  type("b");
  EXPECT_TRUE(button().isEnabled());
  EXPECT_EQ(focus(), &location());
}

}  // namespace
}  // namespace launcher
