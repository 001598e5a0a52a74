#pragma once

#include <QPointer>
#include <QWidget>

namespace launcher {

/// Enables and disables a window's controls so that the keyboard's focus is never lost.
///
/// A control that is disabled while it has the focus has it back, a field with its selection, as
/// soon as it is enabled; unless the person has gone to another control meanwhile. In between no
/// other control has it: what is typed must not go where the person does not expect it.
class FocusKeeper {
 public:
  /// `window` holds the controls and outlives this object.
  explicit FocusKeeper(QWidget& window) : window_(window) {}

  void setEnabled(QWidget& control, bool enabled);

  /// Gives a control the focus, now or as soon as it is enabled.
  void moveTo(QWidget& control);

 private:
  void holdFor(QWidget& control);
  void giveBack();

  QWidget& window_;
  QPointer<QWidget> waiting_;
};

}  // namespace launcher
