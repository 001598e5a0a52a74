#include "controller/linux/LauncherForm.h"

#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace launcher {
namespace {

constexpr LocalizableText title{
    "Vorx Launcher", "Title of the window and of the application's menu; the program's name"};
constexpr LocalizableText locationLabel{"Vorx location",
                                        "Label of the field for the Vorx's web address"};
constexpr LocalizableText locationTip{
    "The web address of the Vorx, for example https://vorx.example.com",
    "Tool tip of the field for the Vorx's web address"};
constexpr LocalizableText addressLabel{"IP address",
                                       "Label of the field for the Vorx's numeric address"};
constexpr LocalizableText addressTip{
    "Green: a valid address. Red: not a valid address. White: empty, the address is looked up.",
    "Tool tip of the IP address field: what its colours mean"};
constexpr LocalizableText addressHint{"Optional. Leave it empty to have it looked up.",
                                      "Hint below the IP address field"};
constexpr LocalizableText launchTip{
    "Starts remote control. If it was started from here before, it is stopped first.",
    "Tool tip of the launch button"};

constexpr int margin = 20;
constexpr int betweenRows = 12;
constexpr int withinRow = 4;
constexpr int width = 500;

QLabel* label(const QString& text) {
  auto* made = new QLabel(withoutMnemonic(text));
  made->setTextFormat(Qt::PlainText);
  made->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return made;
}

/// A hint is smaller and paler than other texts, in any of the desktop's colours.
QLabel* hint(const QString& text) {
  auto* made = label(text);
  auto* pale = new QGraphicsOpacityEffect(made);
  pale->setOpacity(0.6);
  made->setGraphicsEffect(pale);
  QFont smaller = made->font();
  smaller.setPointSizeF(smaller.pointSizeF() * 0.85);
  made->setFont(smaller);
  return made;
}

AddressField* field(const QString& example, const QString& tip) {
  auto* made = new AddressField(example);
  made->setToolTip(tip);
  return made;
}

/// A click on the button leaves the focus in the field.
QPushButton* button(const QString& text, const QString& tip) {
  auto* made = new QPushButton(withoutMnemonic(text));
  made->setToolTip(tip);
  made->setFocusPolicy(Qt::TabFocus);
  made->setDefault(true);
  made->setEnabled(false);
  return made;
}

/// A field below the label that names it.
QVBoxLayout* labelled(const QString& text, QWidget* field) {
  auto* name = label(text);
  name->setBuddy(field);
  auto* made = new QVBoxLayout;
  made->setSpacing(withinRow);
  made->addWidget(name);
  made->addWidget(field);
  return made;
}

QHBoxLayout* bottomRow(const LauncherForm& form) {
  auto* made = new QHBoxLayout;
  made->setSpacing(margin);
  made->addWidget(form.infoLabel);
  made->addWidget(form.launchButton);
  return made;
}

}  // namespace

LauncherForm layOut(QWidget& window, const Translations& translations) {
  const auto text = [&](const LocalizableText& shown) {
    return QString::fromStdString(translations(shown));
  };
  const LauncherForm form{
      .vorxLocation = field(QStringLiteral("https://vorx.example.com"), text(locationTip)),
      .ipAddress = field(QStringLiteral("10.0.0.5"), text(addressTip)),
      .infoLabel = new StatusLine({text(texts::noURL), text(texts::runningReadyToRun),
                                   text(texts::readyToRun), text(texts::gettingIPAddress)}),
      .launchButton = button(text(texts::launch), text(launchTip)),
  };

  auto* rows = new QVBoxLayout(&window);
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(betweenRows);
  rows->setSizeConstraint(QLayout::SetMinAndMaxSize);
  rows->addLayout(labelled(text(locationLabel), form.vorxLocation));
  auto* address = labelled(text(addressLabel), form.ipAddress);
  address->addWidget(hint(text(addressHint)));
  rows->addLayout(address);
  rows->addLayout(bottomRow(form));

  window.setWindowTitle(text(title));
  window.resize(window.minimumSizeHint().expandedTo({width, 0}));
  return form;
}

QString withoutMnemonic(QString text) {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace launcher
