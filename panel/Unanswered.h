// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <vector>

#include "Control.h"

namespace tracewell {

/// The controls of a dialog that show another value because the instrument has not told its own.
/// Each is marked until the user chooses a value for it, or the instrument tells one.
class Unanswered {
 public:
  Unanswered() = default;
  Unanswered(const Unanswered&) = delete;

  /// `control` outlives this.
  void watch(Control& control);
  void note(Control& control, bool isAnswered);
  /// The answers may be those of other questions.
  void doubtAll();

 private:
  std::vector<Control*> watched_;
  std::set<const Control*> controls_;
};

}  // namespace tracewell
