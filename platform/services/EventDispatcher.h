// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "Dialogs.h"
#include "Gate.h"

namespace tracewell {

/// The one way from an outside event (a click, a tick, bytes from the line) into the program.
/// Everything that a handler throws ends here.
class EventDispatcher {
 public:
  EventDispatcher(Gate& gate, Dialogs& dialogs) : gate_(gate), dialogs_(dialogs) {}

  /// A handler has ended with an error, which the box will show.
  std::function<void()> failed;

  /// Runs `handler`, unless the gate is held or closed. Shows an error that the handler does not
  /// trap in one box, with number and description; the program goes on.
  void dispatch(const std::function<void()>& handler) const;

  /// Whether the program goes on.
  bool isOpen() const { return !gate_.isClosed(); }

  /// The same for the handler that ends the program. While the gate is held it is kept: the wait
  /// ends (StandBy), and the kept handler runs as soon as the one that waited has unwound.
  void dispatchEnd(const std::function<void()>& handler) const;

 private:
  void run(const std::function<void()>& handler) const;
  void show(const Error& error) const;

  Gate& gate_;
  Dialogs& dialogs_;
};

}  // namespace tracewell
