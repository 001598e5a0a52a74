#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// Drops the platform plugin's messages about what it cannot do: the tests do not need it.
void dropToolkitMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "de_AT.UTF-8");  // need not be installed here
  qunsetenv("LANGUAGE");
  qInstallMessageHandler(dropToolkitMessage);
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("fusion"));
  return RUN_ALL_TESTS();
}
