#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// This platform's remarks on what it cannot do are beside the point.
void dropToolkitMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "de_AT.UTF-8");  // whether or not there is such a locale here
  qunsetenv("LANGUAGE");
  qInstallMessageHandler(dropToolkitMessage);
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("fusion"));
  return RUN_ALL_TESTS();
}
