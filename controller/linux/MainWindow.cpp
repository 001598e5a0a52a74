#include "controller/linux/MainWindow.h"

#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QShortcut>
#include <QSignalBlocker>

namespace launcher {
namespace {

bool isAvailable(Availability availability) { return availability == Availability::enabled; }

QColor colour(AddressMark mark) {
  switch (mark) {
    case AddressMark::valid:
      return QColorConstants::Green;
    case AddressMark::invalid:
      return QColorConstants::Red;
    case AddressMark::empty:
      return QColorConstants::White;
  }
  Q_UNREACHABLE();
}

/// Lets long words, such as host names, continue in the next line instead of being cut off.
QString withBreaks(QString text) {
  static const QRegularExpression longWord(QStringLiteral("(\\S{40})"));
  return text.replace(longWord, QStringLiteral("\\1\u200B"));
}

}  // namespace

std::shared_ptr<MainWindow> MainWindow::make(const ControllerServices& services) {
  std::shared_ptr<MainWindow> window(new MainWindow(services),
                                     [](MainWindow* last) { last->deleteLater(); });
  window->controller_.viewDidLoad();
  return window;
}

/// The window stays above ordinary windows.
MainWindow::MainWindow(const ControllerServices& services)
    : QWidget(nullptr, Qt::Window | Qt::WindowStaysOnTopHint),
      form_(layOut(*this, services.translations)),
      controller_(*this, background_, services) {
  form_.vorxLocation->setBackground(colour(AddressMark::empty));
  form_.vorxLocation->setFocus();
  connectControls();
}

void MainWindow::connectControls() {
  for (AddressField* field : {form_.vorxLocation, form_.ipAddress}) {
    // `textEdited` would miss the text that a screen reader enters.
    connect(field, &QLineEdit::textChanged, this, [this] { controller_.updateState(); });
    connect(field, &QLineEdit::returnPressed, form_.launchButton, &QPushButton::click);
  }
  connect(form_.launchButton, &QPushButton::clicked, this,
          [this] { controller_.launchButtonClick(); });

  for (const auto key : {Qt::Key_Q, Qt::Key_W}) {
    connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, this, &QWidget::close);
  }
}

std::string MainWindow::vorxLocation() const { return form_.vorxLocation->text().toStdString(); }

void MainWindow::setVorxLocation(const std::string& text) {
  const QSignalBlocker notAnEdit(form_.vorxLocation);
  form_.vorxLocation->setText(QString::fromStdString(text));
}

void MainWindow::setVorxLocation(Availability availability) {
  focus_.setEnabled(*form_.vorxLocation, isAvailable(availability));
}

std::string MainWindow::ipAddress() const { return form_.ipAddress->text().toStdString(); }

void MainWindow::setIpAddressMark(AddressMark mark) {
  form_.ipAddress->setBackground(colour(mark));
}

void MainWindow::setLaunchButton(Availability availability) {
  focus_.setEnabled(*form_.launchButton, isAvailable(availability));
}

void MainWindow::setLaunchButtonTitle(const std::string& title) {
  form_.launchButton->setText(withoutMnemonic(QString::fromStdString(title)));
}

void MainWindow::setInfoLabel(const std::string& text) {
  form_.infoLabel->say(QString::fromStdString(text));
}

/// The texts may contain what the person typed, so show them as plain text, not as markup.
void MainWindow::showAlert(const Alert& alert) {
  QMessageBox box(this);
  box.setWindowFlag(Qt::WindowStaysOnTopHint);
  box.setIcon(QMessageBox::Warning);
  box.setWindowTitle(windowTitle());
  box.setTextFormat(Qt::PlainText);
  box.setText(withBreaks(QString::fromStdString(alert.message)));
  box.setInformativeText(QString::fromStdString(alert.informative));
  box.addButton(withoutMnemonic(QString::fromStdString(alert.button)), QMessageBox::AcceptRole);

  focus_.moveTo(*form_.vorxLocation);
  callForAttention();
  box.exec();
}

/// An alert would be hidden with its minimised window, and unseen while the person works elsewhere.
void MainWindow::callForAttention() {
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  QApplication::alert(this);
}

std::shared_ptr<void> MainWindow::keepAlive() { return shared_from_this(); }

}  // namespace launcher
