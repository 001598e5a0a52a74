// The status line: what a screen reader says of it, and whether its texts fit.

#include <QAccessible>

#include "controller/linux/StatusLine.h"
#include "controller/linux/TextTables.h"
#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

class StatusTest : public WindowTest {};

TEST_F(StatusTest, IsANotificationWithTheTextAsItsName) {
  open();
  enterLocation();
  const auto* spoken = QAccessible::queryAccessibleInterface(&statusLine());
  EXPECT_EQ(spoken->role(), QAccessible::Notification);
  EXPECT_EQ(spoken->text(QAccessible::Name), statusLine().text());
}

/// Every status text in every language.
std::vector<std::vector<QString>> statusTexts() {
  std::vector<std::vector<QString>> all;
  for (const TextTable& table : textTables()) {
    auto& texts = all.emplace_back();
    for (const auto state : {LaunchState::noURL, LaunchState::readyToRun,
                             LaunchState::runningReadyToRun, LaunchState::gettingIPAddress}) {
      const auto found =
          std::ranges::find(table.entries, statusText(state).key, &TextTable::Entry::key);
      EXPECT_NE(found, table.entries.end());
      texts.push_back(QString::fromStdString(std::string(found->text)));
    }
  }
  return all;
}

TEST_F(StatusTest, EveryTextFitsInEveryLanguageWithSmallFontsAndLargeOnes) {
  const QFont before = QApplication::font();
  for (const int points : {8, 10, 14, 24}) {
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);
    for (const auto& texts : statusTexts()) {
      StatusLine line(QStringList(texts.begin(), texts.end()));
      const QSize room = line.minimumSizeHint();
      for (const QString& text : texts) {
        const QRect needed = line.fontMetrics().boundingRect(QRect(0, 0, room.width(), 10'000),
                                                             Qt::TextWordWrap, text);
        EXPECT_LE(needed.height(), room.height()) << text.toStdString() << " at " << points;
        EXPECT_LE(needed.width(), room.width()) << text.toStdString() << " at " << points;
      }
    }
  }
  QApplication::setFont(before);
}

}  // namespace
}  // namespace launcher
