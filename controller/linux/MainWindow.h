#pragma once

#include <QWidget>
#include <memory>

#include "controller/LauncherController.h"
#include "controller/linux/FocusKeeper.h"
#include "controller/linux/LauncherForm.h"
#include "controller/linux/WorkQueues.h"

namespace launcher {

/// The launcher's window for the toolkit. It decides nothing: it passes every event on to the
/// logic. Main thread only, except `keepAlive`.
class MainWindow : public QWidget,
                   public LauncherWindow,
                   public std::enable_shared_from_this<MainWindow> {
 public:
  /// Makes the window and queues the search for the server, but does not show the window yet. The
  /// last reference may be dropped on any thread; the window is destroyed on the main one.
  static std::shared_ptr<MainWindow> make(const ControllerServices& services);

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
  explicit MainWindow(const ControllerServices& services);

  void connectControls();
  void callForAttention();

  LauncherForm form_;
  FocusKeeper focus_{*this};
  BackgroundQueue background_;
  LauncherController controller_;
};

}  // namespace launcher
