#pragma once

#include <memory>
#include <string>

namespace launcher {

/// What the text of the IP field was found to be.
enum class AddressMark { empty, valid, invalid };

enum class Availability { disabled, enabled };

struct Alert {
  std::string message;
  std::string informative;
  std::string button;
};

/// The launcher's window as its logic sees it. Texts are UTF-8. Main thread only, but for
/// `keepAlive`. A control that is not connected stops the program.
struct LauncherWindow {
  virtual ~LauncherWindow() = default;

  virtual std::string vorxLocation() const = 0;
  virtual void setVorxLocation(const std::string& text) = 0;
  virtual void setVorxLocation(Availability availability) = 0;

  virtual std::string ipAddress() const = 0;
  /// Shows in the IP field's colour what its text was found to be; nothing happens where the field
  /// has no layer.
  virtual void setIpAddressMark(AddressMark mark) = 0;

  virtual void setLaunchButton(Availability availability) = 0;
  virtual void setLaunchButtonTitle(const std::string& title) = 0;

  virtual void setInfoLabel(const std::string& text) = 0;

  /// Shows the alert and blocks until it has been dismissed; the window goes on being drawn.
  virtual void showAlert(const Alert& alert) = 0;

  /// A token that keeps the window's controller alive, with this object, for as long as it is held.
  /// Any thread, for taking and for letting go.
  virtual std::shared_ptr<void> keepAlive() = 0;
};

}  // namespace launcher
