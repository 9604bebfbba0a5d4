// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Bench.h"
#include "DesktopClock.h"
#include "PortUser.h"

namespace tracewell {

/// The port's rules in real time, on a real channel that the derived test opens.
class DeviceLineTest : public testing::Test,
                       public ChannelOpener,
                       protected SurroundingsBy<DesktopClock> {
 protected:
  LinePort port{*this, clock, gate, dispatcher, standBy};
};

}  // namespace tracewell
