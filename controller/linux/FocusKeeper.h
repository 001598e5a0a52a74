#pragma once

#include <QPointer>
#include <QWidget>

namespace launcher {

/// Enables and disables a window's controls without losing the keyboard focus.
///
/// A control that is disabled while it has the focus gets it back when it is enabled, a field with
/// its selection, unless the person has moved to another control. In between no control has the
/// focus, so that typed text does not go where the person does not expect it.
class FocusKeeper {
 public:
  /// `window` holds the controls and outlives this object.
  explicit FocusKeeper(QWidget& window) : window_(window) {}

  void setEnabled(QWidget& control, bool enabled);

  /// Gives a control the focus, at once or when it is enabled.
  void moveTo(QWidget& control);

 private:
  void holdFor(QWidget& control);
  void giveBack();

  QWidget& window_;
  QPointer<QWidget> waiting_;
};

}  // namespace launcher
