#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <mutex>

#include "app/QuitSequence.h"
#include "app/Services.h"
#include "app/linux/QuitSignals.h"
#include "controller/linux/MainWindow.h"
#include "controller/linux/TextTables.h"

namespace launcher {
namespace {

/// The words that the toolkit reads as a command line: not the person's, which count for nothing.
///
/// A window can ask to float in X11 only, so that comes first, also on a desktop that has both;
/// unless the environment says otherwise.
struct ToolkitArguments {
  std::array<char, 13> program{"VorxLauncher"};
  std::array<char, 10> option{"-platform"};
  std::array<char, 12> platforms{"xcb;wayland"};
  std::array<char*, 4> words{program.data(), option.data(), platforms.data(), nullptr};
  int count = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? 1 : 3;
};

/// What the toolkit has to remark is nothing that a person could act on; where it finds no display
/// it aborts.
void handleToolkitMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtFatalMsg) return;
  if (QCoreApplication::startingUp()) {
    std::fputs("VorxLauncher: no display to show the window on\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }
  std::fprintf(stderr, "VorxLauncher: %s\n", qPrintable(message));
}

/// The toolkit's own texts, such as a field's menu, in the language of the window.
void loadToolkitTexts(QTranslator& translator) {
  const TextTable* table = desktopsTable();
  if (table == nullptr) return;
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (translator.load(QLocale(table->name()), QStringLiteral("qtbase"), QStringLiteral("_"),
                      folder)) {
    QCoreApplication::installTranslator(&translator);
  }
}

void quitOnce() {
  static std::once_flag done;
  std::call_once(done, [] {
    quitSequence(LaunchControl::sharedInstance(), *platformServices().processes, kill);
  });
}

/// The toolkit calls `exit` when its display is lost.
void quitAtExit() {
  std::atexit([] {
    quitOnce();
    std::_Exit(EXIT_FAILURE);
  });
}

QString iconFile() {
  return QString::fromStdString(platformServices().bundle->resourcePath().value_or("")) +
         QStringLiteral("/VorxLauncher.png");
}

int run() {
  QuitSignals quitSignals;
  ToolkitArguments arguments;
  qInstallMessageHandler(handleToolkitMessage);
  QApplication application(arguments.count, arguments.words.data());

  QObject::connect(&application, &QCoreApplication::aboutToQuit, quitOnce);
  quitAtExit();
  quitSignals.watch();

  QTranslator toolkitTexts;
  loadToolkitTexts(toolkitTexts);
  QApplication::setWindowIcon(QIcon(iconFile()));

  const auto window = MainWindow::make(controllerServices());
  window->show();
  return QApplication::exec();
}

}  // namespace
}  // namespace launcher

/// Background work may go on until the process ends, so nothing that it uses is destroyed.
int main() { std::_Exit(launcher::run()); }
