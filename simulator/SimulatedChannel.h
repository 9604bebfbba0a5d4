// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "ByteChannel.h"
#include "Clock.h"
#include "Instrument.h"

namespace tracewell {

/// A cable to a simulated instrument inside the program. The instrument outlives it and keeps its
/// settings from one cable to the next; it takes over the panel's line settings.
class SimulatedChannel : public ByteChannel {
 public:
  SimulatedChannel(Instrument& instrument, Clock& clock, const LineSettings& settings);

  void write(std::string_view bytes) override;
  std::string read(int timeOut) override;

 private:
  double now() const { return static_cast<double>(clock_.milliseconds()); }
  void announceNextBytes();

  Instrument& instrument_;
  Clock& clock_;
  bool isAnnounced_ = false;
  /// Gone with the channel; an announcement that is still due then does nothing.
  std::shared_ptr<const int> alive_ = std::make_shared<const int>();
};

}  // namespace tracewell
