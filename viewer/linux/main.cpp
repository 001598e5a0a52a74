// A sample viewer, which stands in for the remote-control viewer. It prints and shows the
// launcher's arguments. It ends on SIGTERM, when its window closes, or when it loses its display.

#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <cstdio>

#include "viewer/Arguments.h"
#include "viewer/linux/SampleWindow.h"

namespace {

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
    std::fprintf(stderr, "usage: %s %s\n", argv[0], viewer::kUsage);
    return 2;
  }
  std::puts(viewer::description(*arguments).c_str());
  std::fflush(stdout);
  return showWindow(argv[0], *arguments);
}
