// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "Error.h"
#include "Property.h"
#include "Window.h"

namespace tracewell {

/// How far a control shows what the instrument has.
enum class Trust {
  holds,
  /// The instrument has not told this value, or something may have changed it since.
  unread,
  /// It was right once, and belongs to something that is gone.
  stale
};

/// A named thing on a window: properties that the program reads and writes, and an event for each
/// thing that a user can do with it. It registers with its window at construction.
///
/// The functions of derived controls that are named after a user's action (`press`, `turn`,
/// `choose`, ...) do what that action does: change the property, raise the event, and end an error
/// at the event dispatcher. Views and tests call them; the program itself only sets properties.
class Control : public Observable {
 public:
  static constexpr int noIndex = -1;

  /// `index` is the place in a control array, counted from 0.
  Control(Window& owner, std::string_view name, int index = noIndex);
  virtual ~Control() = default;

  const std::string& name() const { return name_; }
  int index() const { return index_; }
  /// Name of the object in the form: "cbTrig_0" for cbTrig(0), the plain name outside arrays.
  std::string objectName() const;
  Window& owner() const { return owner_; }

  Property<bool> visible{*this, true};
  Property<bool> enabled{*this, true};
  /// Called whenever the control is painted; without it the shown value holds. It must not raise.
  std::function<Trust()> trust;
  /// What the view painted last; belongs to the view.
  Trust painted = Trust::holds;
  /// The view marks it.
  bool isUnread() const { return trust && trust() == Trust::unread; }
  /// The view shows it pale.
  bool isStale() const { return trust && trust() == Trust::stale; }
  /// Called when the user has chosen a value, before the control's own event.
  std::function<void()> chosen;

  /// Shows the control at once, although a handler is running.
  void refresh() { owner_.refresh(); }

 protected:
  /// Runs the handler of a user's action, unless the user cannot reach the control now.
  void userDoes(const std::function<void()>& action);
  void tellChosen() const {
    if (chosen) chosen();
  }

 private:
  Window& owner_;
  std::string name_;
  int index_;
};

/// A control with a caption, which the caption files can replace.
class CaptionedControl : public Control {
 public:
  CaptionedControl(Window& owner, std::string_view name, std::string_view captionText,
                   int index = noIndex)
      : Control(owner, name, index), caption(*this, std::string(captionText)) {}

  Property<std::string> caption;
};

/// Controls of one name, told apart by index: `cbTrig(0)` and its siblings.
template <class Item>
class ControlArray {
 public:
  /// One control per caption, each built as Item(owner, name, caption, index).
  ControlArray(Window& owner, std::string_view name,
               std::initializer_list<std::string_view> captions) {
    for (const std::string_view caption : captions)
      items_.emplace_back(owner, name, caption, size());
  }
  /// `count` controls without captions, each built as Item(owner, name, index).
  ControlArray(Window& owner, std::string_view name, int count) {
    while (size() < count) items_.emplace_back(owner, name, size());
  }

  int size() const { return static_cast<int>(items_.size()); }

  /// Raises "Subscript out of range" for an index that no control has.
  Item& operator()(int index) {
    if (index < 0 || index >= size()) throw subscriptError();
    return items_[static_cast<std::size_t>(index)];
  }

  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

 private:
  std::deque<Item> items_;
};

}  // namespace tracewell
