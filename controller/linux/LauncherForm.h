#pragma once

#include <QLabel>
#include <QPushButton>

#include "controller/Translations.h"
#include "controller/linux/AddressField.h"
#include "controller/linux/StatusLine.h"

namespace launcher {

/// The controls of the launcher's window and how they are laid out.
struct LauncherForm {
  AddressField* vorxLocation;
  AddressField* ipAddress;
  StatusLine* infoLabel;
  QPushButton* launchButton;
};

/// Fills a window with its controls, which belong to it, and gives it its title. The controls are
/// as they are before the first evaluation: the button disabled, the IP field without a colour.
LauncherForm layOut(QWidget& window, const Translations& translations);

/// A text as a label or a button takes it: "&" would underline the letter that follows.
QString withoutMnemonic(QString text);

}  // namespace launcher
