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

/// Looks texts up and makes controls that show them.
class Maker {
 public:
  explicit Maker(const Translations& translations) : translations_(translations) {}

  QString text(const LocalizableText& shown) const {
    return QString::fromStdString(translations_(shown));
  }

  QLabel* label(const LocalizableText& shown) const {
    auto* made = new QLabel(withoutMnemonic(text(shown)));
    made->setTextFormat(Qt::PlainText);
    made->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return made;
  }

  /// A hint is smaller and paler than other texts, in any of the desktop's colours.
  QLabel* hint(const LocalizableText& shown) const {
    auto* made = label(shown);
    auto* pale = new QGraphicsOpacityEffect(made);
    pale->setOpacity(0.6);
    made->setGraphicsEffect(pale);
    QFont smaller = made->font();
    smaller.setPointSizeF(smaller.pointSizeF() * 0.85);
    made->setFont(smaller);
    return made;
  }

  AddressField* field(const char* example, const LocalizableText& tip) const {
    auto* made = new AddressField(QString::fromUtf8(example));
    made->setToolTip(text(tip));
    return made;
  }

  StatusLine* statusLine() const {
    auto* made = new StatusLine({text(texts::noURL), text(texts::runningReadyToRun),
                                 text(texts::readyToRun), text(texts::gettingIPAddress)});
    made->say(text(texts::noURL));
    return made;
  }

  /// A click on the button leaves the focus in the field.
  QPushButton* launchButton() const {
    auto* made = new QPushButton(withoutMnemonic(text(texts::launch)));
    made->setToolTip(text(launchTip));
    made->setFocusPolicy(Qt::TabFocus);
    made->setDefault(true);
    made->setEnabled(false);
    return made;
  }

 private:
  const Translations& translations_;
};

/// Puts widgets that belong together one below the other.
QVBoxLayout* row(const QList<QWidget*>& widgets) {
  auto* made = new QVBoxLayout;
  made->setSpacing(withinRow);
  for (QWidget* widget : widgets) made->addWidget(widget);
  return made;
}

QHBoxLayout* bottomRow(const LauncherForm& form) {
  auto* made = new QHBoxLayout;
  made->setSpacing(margin);
  made->addWidget(form.infoLabel);
  made->addWidget(form.launchButton);
  return made;
}

QLabel* naming(QLabel* label, QWidget* field) {
  label->setBuddy(field);
  return label;
}

}  // namespace

LauncherForm layOut(QWidget& window, const Translations& translations) {
  const Maker make(translations);
  const LauncherForm form{
      .vorxLocation = make.field("https://vorx.example.com", locationTip),
      .ipAddress = make.field("10.0.0.5", addressTip),
      .infoLabel = make.statusLine(),
      .launchButton = make.launchButton(),
  };

  auto* rows = new QVBoxLayout(&window);
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(betweenRows);
  rows->setSizeConstraint(QLayout::SetMinAndMaxSize);
  rows->addLayout(row({naming(make.label(locationLabel), form.vorxLocation), form.vorxLocation}));
  rows->addLayout(row(
      {naming(make.label(addressLabel), form.ipAddress), form.ipAddress, make.hint(addressHint)}));
  rows->addLayout(bottomRow(form));

  window.setWindowTitle(make.text(title));
  window.resize(window.minimumSizeHint().expandedTo({width, 0}));
  return form;
}

QString withoutMnemonic(QString text) {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace launcher
