// The smallest program of this toolkit: one window with one field.

#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(new QLineEdit);
  window.resize(460, 214);
  window.show();
  return QApplication::exec();
}
