// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>

#include "Control.h"
#include "KnownInstrument.h"
#include "SerialPort.h"

namespace tracewell {

/// The controls of a dialog whose value may be another than the instrument's: it has not told its
/// own, has told one that may be the reply to another query, or was not asked. Each is marked until
/// the user chooses a value for it, or what it shows is surely the instrument's.
class Unanswered {
 public:
  Unanswered(const SerialPort& port, const KnownInstrument& known) : port_(port), known_(known) {}
  Unanswered(const Unanswered&) = delete;

  /// `control` outlives this.
  void watch(Control& control);
  /// The query for its value has just been sent. It had a reply, and that was a value, or not.
  void note(Control& control, bool isAnswered);
  /// Nothing was asked: `holds` tells, at any time, whether the instrument has what it shows.
  void note(Control& control, std::function<bool()> holds);
  /// It shows what the user wants, or has the panel's own value.
  void settle(Control& control);

 private:
  const SerialPort& port_;
  const KnownInstrument& known_;
  std::map<const Control*, std::function<bool()>> holds_;
};

}  // namespace tracewell
