// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "Control.h"
#include "SerialPort.h"

namespace tracewell {

/// The controls of a dialog that show another value because the instrument has not told its own, or
/// has told one that may be the reply to another query. Each is marked until the user chooses a
/// value for it, or the instrument has surely told one.
class Unanswered {
 public:
  explicit Unanswered(const SerialPort& port) : port_(port) {}
  Unanswered(const Unanswered&) = delete;

  /// `control` outlives this.
  void watch(Control& control);
  /// The query for its value has just been sent. It had a reply, and that was a value, or not.
  void note(Control& control, bool isAnswered);
  /// It shows what the user or the setup wants.
  void settle(Control& control);
  /// The answers may be those of another instrument.
  void doubtAll();
  /// Repaints what has become sure since, or is no longer.
  void showMarks() const;

 private:
  const SerialPort& port_;
  std::vector<Control*> watched_;
  /// With the number of the reply, if there was one.
  std::map<const Control*, std::optional<int>> replies_;
};

}  // namespace tracewell
