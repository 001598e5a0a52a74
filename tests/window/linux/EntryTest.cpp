// What a field takes.

#include <QClipboard>

#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

class EntryTest : public WindowTest {
 protected:
  void paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(EntryTest, ALocationIsSetAsReceived) {
  open();
  window_->setVorxLocation(std::string("  https://h \u00e9\U0001F600 "));
  EXPECT_EQ(window_->vorxLocation(), "  https://h \u00e9\U0001F600 ");
}

TEST_F(EntryTest, ALocationThatIsSetIsNoEdit) {
  open();
  window_->setVorxLocation(std::string("https://h.example"));
  EXPECT_EQ(world_.processes.searches, 1);  // the one at the start
}

TEST_F(EntryTest, ALongTextIsNotCut) {
  open();
  const QString longText(100'000, QLatin1Char('a'));
  paste(longText);
  EXPECT_EQ(location().text(), longText);
}

TEST_F(EntryTest, LinesAreJoinedSinceTheirEndsWouldNotBeSeen) {
  open();
  paste(QStringLiteral("https://server.example/\r\nfolder\n"));
  EXPECT_EQ(location().text(), QStringLiteral("https://server.example/folder"));
  EXPECT_EQ(location().cursorPosition(), location().text().size());
  EXPECT_TRUE(button().isEnabled());
}

TEST_F(EntryTest, LinesPastedIntoATextLeaveTheCursorBehindThem) {
  open();
  type("ad");
  press(Qt::Key_Left);
  paste(QStringLiteral("\nb\nc"));
  type("!");
  EXPECT_EQ(location().text(), QStringLiteral("abc!d"));
}

TEST_F(EntryTest, ComposedTextIsEvaluatedWhenItIsCommitted) {
  open();
  QInputMethodEvent composing(QStringLiteral("::1"), {});
  QApplication::sendEvent(&ipAddress(), &composing);
  EXPECT_EQ(window_->ipAddress(), "");
  QInputMethodEvent committed;
  committed.setCommitString(QStringLiteral("::1"));
  QApplication::sendEvent(&ipAddress(), &committed);
  EXPECT_EQ(window_->ipAddress(), "::1");
}

}  // namespace
}  // namespace launcher
