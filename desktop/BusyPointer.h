// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include "Gate.h"

namespace tracewell {

/// Shows the busy pointer while a handler waits for the instrument: the gate is held, and the event
/// loop still runs. Short waits do not show it.
class BusyPointer : public QObject {
 public:
  explicit BusyPointer(const Gate& gate);
  ~BusyPointer() override;

 private:
  void look();
  void show(bool isBusy);

  const Gate& gate_;
  QElapsedTimer sinceHeld_;
  bool isShown_ = false;
};

}  // namespace tracewell
