#pragma once

#include <memory>
#include <string>

namespace launcher {

/// The result of checking the IP field's text.
enum class AddressMark { empty, valid, invalid };

enum class Availability { disabled, enabled };

struct Alert {
  std::string message;
  std::string informative;
  std::string button;
};

/// The launcher's window as its logic sees it. Texts are UTF-8. Main thread only, except
/// `keepAlive`. Ends the program if a control is not connected.
struct LauncherWindow {
  virtual ~LauncherWindow() = default;

  virtual std::string vorxLocation() const = 0;
  virtual void setVorxLocation(const std::string& text) = 0;
  virtual void setVorxLocation(Availability availability) = 0;

  virtual std::string ipAddress() const = 0;
  /// Shows the result in the IP field's colour. Does nothing if the field has no layer.
  virtual void setIpAddressMark(AddressMark mark) = 0;

  virtual void setLaunchButton(Availability availability) = 0;
  virtual void setLaunchButtonTitle(const std::string& title) = 0;

  virtual void setInfoLabel(const std::string& text) = 0;

  /// Shows the alert and blocks until it is dismissed; the window is still drawn meanwhile.
  virtual void showAlert(const Alert& alert) = 0;

  /// A token that keeps the window's controller and this object alive. Take and drop it on any
  /// thread.
  virtual std::shared_ptr<void> keepAlive() = 0;
};

}  // namespace launcher
