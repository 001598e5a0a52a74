#include "controller/linux/FocusKeeper.h"

namespace launcher {
namespace {

/// With this reason a field keeps its selection, as when its window loses the focus.
constexpr Qt::FocusReason keepingSelection = Qt::ActiveWindowFocusReason;

}  // namespace

void FocusKeeper::setEnabled(QWidget& control, bool enabled) {
  if (control.isEnabled() == enabled) return;
  // Take the focus away before disabling the control: the toolkit would pass it to the next one.
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
