// SPDX-License-Identifier: GPL-3.0-or-later
#include "Control.h"

namespace tracewell {

Control::Control(Window& owner, std::string_view name, int index)
    : owner_(owner), name_(name), index_(index) {
  owner.controls_.push_back(this);
}

std::string Control::objectName() const {
  return index_ == noIndex ? name_ : name_ + "_" + std::to_string(index_);
}

/// A screen reader, too, finds the widgets of a window that is closed or lies below another.
void Control::userDoes(const std::function<void()>& action) {
  if (!owner_.isReachable() || !visible() || !enabled()) return;
  owner_.services().dispatcher.dispatch(action);
}

}  // namespace tracewell
