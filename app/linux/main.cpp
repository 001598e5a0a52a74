#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <mutex>

#include "app/QuitSequence.h"
#include "app/linux/QuitSignals.h"
#include "controller/linux/MainWindow.h"
#include "controller/linux/TextTables.h"

namespace launcher {
namespace {

/// The command line for the toolkit. The person's own arguments are ignored.
///
/// X11 comes first, even on a desktop that has both, since only there a window can ask to float.
/// The environment can say otherwise.
struct ToolkitArguments {
  std::array<char, 13> program{"VorxLauncher"};
  std::array<char, 10> option{"-platform"};
  std::array<char, 12> platforms{"xcb;wayland"};
  std::array<char*, 4> words{program.data(), option.data(), platforms.data(), nullptr};
  int count = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? 1 : 3;
};

/// Drops the toolkit's warnings, which a person could not act on, and prints its fatal errors. If
/// it cannot start it would abort, so exit first.
void handleToolkitMessage(QtMsgType type, const QMessageLogContext& context,
                          const QString& message) {
  // The fatal error does not tell why. The display's plugin warns only if it was loaded.
  static std::atomic<bool> displayRefused = false;
  if (qstrcmp(context.category, "qt.qpa.xcb") == 0) displayRefused = true;
  if (type != QtFatalMsg) return;

  const bool starting = QCoreApplication::startingUp();
  std::fprintf(
      stderr, "VorxLauncher: %s\n",
      starting && displayRefused ? "no display to show the window on" : qPrintable(message));
  if (starting) std::_Exit(EXIT_FAILURE);
}

/// Loads the toolkit's own texts, such as a field's menu, in the window's language.
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
    quitSequence(LaunchControl::sharedInstance(), controllerServices().processes, kill);
  });
}

/// The toolkit calls `exit` when it loses its display.
void quitAtExit() {
  std::atexit([] {
    quitOnce();
    std::_Exit(EXIT_FAILURE);
  });
}

QString iconFile() {
  return QString::fromStdString(controllerServices().bundle.resourcePath().value_or("")) +
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

/// Background work may go on until the process ends, so end it without destroying anything.
int main() { std::_Exit(launcher::run()); }
