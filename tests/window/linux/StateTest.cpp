// What the window shows of the launch state.

#include <QAccessible>
#include <QImage>

#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

constexpr const char* enterLocationText = "Enter valid Vorx location to enable launch button";
constexpr const char* startText = "Press launch button to start remote control";
constexpr const char* restartText = "Press launch button to re-start remote control";

/// The colour behind a field's text, taken right of the text.
QColor background(QLineEdit& field) {
  const QImage picture = field.grab().toImage();
  return picture.pixelColor(picture.width() - 20, picture.height() / 2);
}

class StateTest : public WindowTest {};

TEST_F(StateTest, IsNotEvaluatedBeforeTheFirstEdit) {
  world_.processes.processes = {processRecord(7, "vexlink")};
  open();
  EXPECT_FALSE(button().isEnabled());
  EXPECT_EQ(button().text(), QStringLiteral("Launch"));
  EXPECT_EQ(status(), enterLocationText);
  EXPECT_EQ(background(location()), QColorConstants::White);
  EXPECT_EQ(background(ipAddress()), window_->palette().color(QPalette::Window));
  EXPECT_TRUE(location().text().isEmpty());
  EXPECT_TRUE(ipAddress().text().isEmpty());
}

TEST_F(StateTest, ALocationEnablesTheButton) {
  open();
  enterLocation();
  EXPECT_TRUE(button().isEnabled());
  EXPECT_EQ(button().text(), QStringLiteral("Launch"));
  EXPECT_EQ(status(), startText);
  EXPECT_EQ(background(ipAddress()), QColorConstants::White);
}

TEST_F(StateTest, AViewerThatRunsMakesItARelaunchWhichTheTitleKeeps) {
  open();
  world_.processes.processes = {processRecord(7, "vexlink")};
  enterLocation();
  EXPECT_EQ(button().text(), QStringLiteral("Re-Launch"));
  EXPECT_EQ(status(), restartText);

  location().selectAll();
  press(Qt::Key_Backspace);
  EXPECT_FALSE(button().isEnabled());
  EXPECT_EQ(button().text(), QStringLiteral("Re-Launch"));
  EXPECT_EQ(status(), enterLocationText);
}

TEST_F(StateTest, TheAddressIsGreenRedOrWhite) {
  open();
  ipAddress().setFocus();
  type("10.0.0");
  EXPECT_EQ(background(ipAddress()), QColorConstants::Red);
  type(".5");
  EXPECT_EQ(background(ipAddress()), QColorConstants::Green);
  EXPECT_EQ(background(ipAddress()), QColor(0, 255, 0));
  EXPECT_FALSE(button().isEnabled());
  ipAddress().selectAll();
  press(Qt::Key_Delete);
  EXPECT_EQ(background(ipAddress()), QColorConstants::White);
  type(" ");
  EXPECT_EQ(background(ipAddress()), QColorConstants::Red);
}

TEST_F(StateTest, AWrongAddressDisablesTheButtonAndTheLocationStaysWhite) {
  open();
  enterLocation();
  ipAddress().setFocus();
  type("letters");
  EXPECT_FALSE(button().isEnabled());
  EXPECT_EQ(status(), enterLocationText);
  EXPECT_EQ(background(location()), QColorConstants::White);
}

TEST_F(StateTest, EveryEditIsEvaluated) {
  open();
  enterLocation();
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(button().isEnabled());
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(button().isEnabled());
}

TEST_F(StateTest, WhatAScreenReaderEntersIsEvaluated) {
  open();
  QAccessible::queryAccessibleInterface(&location())
      ->editableTextInterface()
      ->insertText(0, QStringLiteral("https://server.example"));
  EXPECT_TRUE(button().isEnabled());
}

/// Counts how often widgets are painted.
class Paints : public QObject {
 public:
  explicit Paints(const std::vector<QWidget*>& widgets) {
    for (QWidget* widget : widgets) widget->installEventFilter(this);
  }

  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

TEST_F(StateTest, AKeyPaintsOnlyWhatItChanges) {
  open();
  enterLocation();
  window_->repaint();  // paints what is pending
  const Paints others(std::vector<QWidget*>{&button(), &statusLine(), &ipAddress()});
  const Paints location(std::vector<QWidget*>{&this->location()});
  type("/");
  EXPECT_TRUE(eventually([&] { return location.count > 0; }));
  EXPECT_EQ(others.count, 0);
}

class DarkTest : public WindowTest {
 protected:
  void SetUp() override {
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::black);  // as some desktops leave it
    QApplication::setPalette(dark);
  }
  void TearDown() override {
    WindowTest::TearDown();
    QApplication::setPalette(before_);
  }

 private:
  QPalette before_ = QApplication::palette();
};

TEST_F(DarkTest, TheFieldsKeepTheirColoursWithBlackText) {
  open();
  EXPECT_LT(background(ipAddress()).lightness(), 80);
  ipAddress().setFocus();
  type("::1");
  EXPECT_EQ(background(location()), QColorConstants::White);
  EXPECT_EQ(background(ipAddress()), QColorConstants::Green);
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    EXPECT_EQ(location().palette().color(group, QPalette::Text), QColorConstants::Black);
    EXPECT_EQ(ipAddress().palette().color(group, QPalette::Text), QColorConstants::Black);
  }
}

TEST_F(DarkTest, TheHintsAreReadable) {
  open();
  EXPECT_GT(ipAddress().palette().color(QPalette::PlaceholderText).lightness(), 200);
  const auto labels = window_->findChildren<QLabel*>();
  const auto hint = std::ranges::find_if(
      labels, [](QLabel* label) { return label->text().startsWith(QStringLiteral("Optional")); });
  const QImage picture = (*hint)->grab().toImage();
  int brightest = 0;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      brightest = std::max(brightest, picture.pixelColor(x, y).lightness());
    }
  }
  EXPECT_GT(brightest, 120);
}

}  // namespace
}  // namespace launcher
