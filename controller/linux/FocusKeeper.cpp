#include "controller/linux/FocusKeeper.h"

namespace launcher {
namespace {

/// A field keeps its selection as it does when its window is left.
constexpr Qt::FocusReason keepingSelection = Qt::ActiveWindowFocusReason;

}  // namespace

void FocusKeeper::setEnabled(QWidget& control, bool enabled) {
  if (control.isEnabled() == enabled) return;
  // Before it is disabled, since the toolkit would hand the focus on to the next control.
  if (!enabled && window_.focusWidget() == &control) holdFor(control);
  control.setEnabled(enabled);
  if (enabled && waiting_ == &control) giveBack();
}

void FocusKeeper::moveTo(QWidget& control) {
  holdFor(control);
  if (control.isEnabled()) giveBack();
}

void FocusKeeper::holdFor(QWidget& control) {
  waiting_ = &control;
  window_.setFocus(keepingSelection);
}

void FocusKeeper::giveBack() {
  if (window_.focusWidget() == &window_) waiting_->setFocus(keepingSelection);
  waiting_.clear();
}

}  // namespace launcher
