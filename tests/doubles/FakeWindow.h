#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controller/LauncherWindow.h"
#include "tests/doubles/EventLog.h"

namespace launcher {

/// A window that remembers what it shows, and logs every call that changes it.
class FakeWindow : public LauncherWindow {
 public:
  std::string location;
  std::string ip;
  std::string info = "as laid out";
  std::string buttonTitle = "as laid out";
  std::optional<AddressMark> ipMark;
  bool buttonEnabled = false;
  bool locationEnabled = true;
  std::vector<Alert> alerts;
  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();
  std::function<void()> whileAlertIsUp = [] {};

  /// How many tokens of `keepAlive` are held.
  long held() const { return token_.use_count() - 1; }

  std::string vorxLocation() const override { return location; }
  void setVorxLocation(const std::string& text) override {
    location = text;
    log->note("location " + text);
  }
  void setVorxLocation(Availability availability) override {
    locationEnabled = availability == Availability::enabled;
    log->note(locationEnabled ? "enable location" : "disable location");
  }
  std::string ipAddress() const override { return ip; }
  void setIpAddressMark(AddressMark mark) override {
    ipMark = mark;
    log->note("mark ip");
  }
  void setLaunchButton(Availability availability) override {
    buttonEnabled = availability == Availability::enabled;
    log->note(buttonEnabled ? "enable button" : "disable button");
  }
  void setLaunchButtonTitle(const std::string& title) override {
    buttonTitle = title;
    log->note("title " + title);
  }
  void setInfoLabel(const std::string& text) override {
    info = text;
    log->note("info " + text);
  }
  void showAlert(const Alert& alert) override {
    alerts.push_back(alert);
    log->note("alert " + alert.message);
    whileAlertIsUp();
  }
  std::shared_ptr<void> keepAlive() override { return token_; }

 private:
  std::shared_ptr<void> token_ = std::make_shared<int>();
};

}  // namespace launcher
