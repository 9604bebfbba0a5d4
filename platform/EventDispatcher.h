// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "Dialogs.h"

namespace tracewell {

/// The one way from an outside event (a click, a tick, bytes from the line) into the program.
/// Whatever a handler throws ends here.
class EventDispatcher {
 public:
  explicit EventDispatcher(Dialogs& dialogs) : dialogs_(dialogs) {}

  /// Runs `handler`. An error that it does not trap is shown in one box with its number and
  /// description; the program goes on.
  void dispatch(const std::function<void()>& handler) const;

 private:
  Dialogs& dialogs_;
};

}  // namespace tracewell
