// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

namespace tracewell {

/// Something that a view shows. The view sets `changed` to its repaint; without a view nothing
/// happens.
class Observable {
 public:
  Observable() = default;
  Observable(const Observable&) = delete;
  Observable& operator=(const Observable&) = delete;

  /// Called after any property has got a new value. Must not raise events.
  std::function<void()> changed;

  void notifyChanged() const {
    if (changed) changed();
  }

 protected:
  ~Observable() = default;
};

/// One value of an Observable, read as `caption()` and written as `caption = text`. Assigning shows
/// the new value first and then runs the control's own reaction (which may raise an event).
template <class Value>
class Property {
 public:
  /// Called at every assignment, with whether the value is new.
  using Assigned = std::function<void(bool isNew)>;
  /// Called before anything changes; raises the exception that refuses a value.
  using Check = std::function<void(const Value&)>;

  explicit Property(Observable& owner, Value initial = {}, Assigned assigned = {}, Check check = {})
      : owner_(owner),
        value_(std::move(initial)),
        assigned_(std::move(assigned)),
        check_(std::move(check)) {}
  Property(const Property&) = delete;

  const Value& operator()() const { return value_; }

  Property& operator=(Value value) {
    if (check_) check_(value);
    const bool isNew = setQuietly(std::move(value));
    if (assigned_) assigned_(isNew);
    return *this;
  }

  /// Shows `value` without the control's reaction. Returns whether it is new.
  bool setQuietly(Value value) {
    if (value == value_) return false;
    value_ = std::move(value);
    owner_.notifyChanged();
    return true;
  }
  Property& operator=(const Property&) = delete;

 private:
  Observable& owner_;
  Value value_;
  Assigned assigned_;
  Check check_;
};

/// One handler per event, as in `cmdOK.click = [this] { cmdOK_Click(); };`. Without a handler,
/// raising does nothing. An exception of the handler reaches the raiser.
template <class... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  void raise(Arguments... arguments) const {
    if (handler_) handler_(arguments...);
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  Handler handler_;
};

}  // namespace tracewell
