#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controller/LauncherWindow.h"

namespace launcher {

/// A window that remembers what it shows, and every call that changed it, in order.
class FakeWindow : public LauncherWindow {
 public:
  std::string location;
  std::string ip;
  std::string info = "as laid out";
  std::string buttonTitle = "as laid out";
  std::optional<AddressMark> ipColour;
  bool buttonEnabled = false;
  bool locationEnabled = true;
  std::vector<Alert> alerts;
  std::vector<std::string> calls;
  std::function<void()> whileAlertIsUp = [] {};

  /// How many tokens of `keepAlive` are held.
  long held() const { return token_.use_count() - 1; }

  std::string vorxLocation() const override { return location; }
  void setVorxLocation(const std::string& text) override {
    location = text;
    calls.push_back("location " + text);
  }
  void setVorxLocation(Availability availability) override {
    locationEnabled = availability == Availability::enabled;
    calls.emplace_back(locationEnabled ? "enable location" : "disable location");
  }
  std::string ipAddress() const override { return ip; }
  void setIpAddressMark(AddressMark colour) override {
    ipColour = colour;
    calls.emplace_back("colour ip");
  }
  void setLaunchButton(Availability availability) override {
    buttonEnabled = availability == Availability::enabled;
    calls.emplace_back(buttonEnabled ? "enable button" : "disable button");
  }
  void setLaunchButtonTitle(const std::string& title) override {
    buttonTitle = title;
    calls.push_back("title " + title);
  }
  void setInfoLabel(const std::string& text) override {
    info = text;
    calls.push_back("info " + text);
  }
  void showAlert(const Alert& alert) override {
    alerts.push_back(alert);
    calls.push_back("alert " + alert.message);
    whileAlertIsUp();
  }
  std::shared_ptr<void> keepAlive() override { return token_; }

 private:
  std::shared_ptr<void> token_ = std::make_shared<int>();
};

}  // namespace launcher
