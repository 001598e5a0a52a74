#pragma once

#include <QLabel>
#include <QPushButton>

#include "controller/Translations.h"
#include "controller/linux/AddressField.h"
#include "controller/linux/StatusLine.h"

namespace launcher {

/// The controls of the launcher's window.
struct LauncherForm {
  AddressField* vorxLocation;
  AddressField* ipAddress;
  StatusLine* infoLabel;
  QPushButton* launchButton;
};

/// Fills a window with its controls, which the window owns, and sets its title. The controls are
/// ready for the first evaluation: the button is disabled, the IP field has no colour.
LauncherForm layOut(QWidget& window, const Translations& translations);

/// Escapes "&" for labels and buttons, where it would underline the next letter.
QString withoutMnemonic(QString text);

}  // namespace launcher
