// A sample viewer, which stands in for the remote-control viewer. It prints and shows the
// launcher's arguments. It ends on SIGTERM, when its window closes, or when it loses its display.

#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <cstdio>

#include "viewer/Arguments.h"
#include "viewer/linux/SampleWindow.h"

namespace {

void print(const viewer::Arguments& arguments) {
  std::printf("sample viewer: host %s, IP address %s, resource folder %s\n", arguments.host.c_str(),
              arguments.ipAddress.c_str(), arguments.resourceFolder.c_str());
  std::fflush(stdout);
}

/// The toolkit aborts if it finds no display. A viewer without one waits for its signal.
void waitWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  for (;;) pause();
}

int showWindow(char* program, const viewer::Arguments& arguments) {
  int count = 1;
  qInstallMessageHandler(waitWithoutDisplay);
  QApplication application(count, &program);
  qInstallMessageHandler(nullptr);

  // The launcher's icon.
  QApplication::setWindowIcon(
      QIcon(QString::fromStdString(arguments.resourceFolder + "/VorxLauncher.png")));
  viewer::SampleWindow window(arguments);
  window.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const auto arguments = viewer::parseArguments(argc, argv);
  if (!arguments) {
    std::fprintf(stderr, "usage: %s -l HOST -i ADDRESS -r FOLDER\n", argv[0]);
    return 2;
  }
  print(*arguments);
  return showWindow(argv[0], *arguments);
}
