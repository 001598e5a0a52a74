#include "viewer/linux/SampleWindow.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace viewer {
namespace {

constexpr int margin = 20;
constexpr int windowWidth = 500;
constexpr int iconSize = 48;
constexpr int titleSize = 17;

QLabel* label(const QString& text) {
  auto* made = new QLabel(text);
  made->setTextFormat(Qt::PlainText);
  return made;
}

QFont bold(QFont font) {
  font.setBold(true);
  return font;
}

QLabel* boldLabel(const QString& text) {
  auto* made = label(text);
  made->setFont(bold(made->font()));
  return made;
}

QLabel* title() {
  auto* made = boldLabel(QStringLiteral("Sample viewer"));
  QFont font = made->font();
  font.setPixelSize(titleSize);
  made->setFont(font);
  return made;
}

QLabel* icon(const QIcon& shown) {
  auto* made = new QLabel;
  made->setPixmap(shown.pixmap(iconSize));
  return made;
}

/// The icon, and beside it a title and an explanation.
QLayout* head(const QIcon& shown) {
  auto* texts = new QVBoxLayout;
  texts->addWidget(title());
  texts->addWidget(label(QStringLiteral("Shows what the remote-control viewer would be given.")));

  auto* made = new QHBoxLayout;
  made->addWidget(icon(shown));
  made->addLayout(texts, 1);
  return made;
}

/// A text that can be selected and breaks anywhere at the line's end.
QLabel* value(const std::string& text) {
  auto* made = label(QString::fromStdString(text));
  made->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  made->setWordWrap(true);
  return made;
}

}  // namespace

SampleWindow::SampleWindow(const Arguments& arguments) {
  auto* values = new QFormLayout;
  values->addRow(boldLabel(QStringLiteral("Host")), value(arguments.host));
  values->addRow(boldLabel(QStringLiteral("IP address")), value(arguments.ipAddress));
  values->addRow(boldLabel(QStringLiteral("Resource folder")), value(arguments.resourceFolder));

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(margin);
  rows->addLayout(head(windowIcon()));
  rows->addLayout(values);

  setWindowTitle(QStringLiteral("Sample Viewer"));
  resize(windowWidth, sizeHint().height());
}

}  // namespace viewer
