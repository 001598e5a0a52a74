#pragma once

#include "controller/LauncherWindow.h"

@class ViewController;

namespace launcher {

/// The window of a `ViewController` as the logic sees it. The controller owns it.
class WindowBridge : public LauncherWindow {
 public:
  explicit WindowBridge(ViewController* controller) : controller_(controller) {}

  std::string vorxLocation() const override;
  void setVorxLocation(const std::string& text) override;
  void setVorxLocation(Availability availability) override;
  std::string ipAddress() const override;
  void setIpAddressMark(AddressMark mark) override;
  void setLaunchButton(Availability availability) override;
  void setLaunchButtonTitle(const std::string& title) override;
  void setInfoLabel(const std::string& text) override;
  void showAlert(const Alert& alert) override;
  std::shared_ptr<void> keepAlive() override;

 private:
  ViewController* controller_;
};

}  // namespace launcher
