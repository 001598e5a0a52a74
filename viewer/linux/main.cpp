// A sample viewer, which stands in for the remote-control viewer. It prints and shows the
// launcher's arguments. It ends on SIGTERM, when its window closes, or when it loses its display.

#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <cstdio>

#include "viewer/Arguments.h"

namespace {

/// The toolkit aborts if it finds no display. A viewer without one waits for its signal.
void waitWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  for (;;) pause();
}

/// Shows the launcher's icon and the arguments until the window is closed.
void show(const viewer::Arguments& arguments) {
  const QIcon icon(QString::fromStdString(arguments.resourceFolder + "/VorxLauncher.png"));
  constexpr int iconSize = 48;
  QApplication::setWindowIcon(icon);

  QMessageBox box;
  box.setWindowTitle(QStringLiteral("Sample Viewer"));
  box.setIconPixmap(icon.pixmap(iconSize));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.setText(QString::fromStdString(viewer::message(arguments)));
  box.exec();
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

  argc = 1;  // the toolkit would take words that look like its own options
  qInstallMessageHandler(waitWithoutDisplay);
  const QApplication application(argc, argv);
  qInstallMessageHandler(nullptr);
  show(*arguments);
  return 0;
}
