// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandExchange.h"

namespace tracewell {

/// The box that has the instrument show a sum or a difference of its channels. The acquisition
/// goes on meanwhile.
class ChannelMath {
 public:
  ChannelMath(frmDSO& main, CommandExchange& exchange) : main_(main), exchange_(exchange) {}

  /// Sends the chosen entry's command; without a chosen entry nothing. What fails in sending is
  /// logged by SendDSOCmd.
  void cbMath_Click();

 private:
  frmDSO& main_;
  CommandExchange& exchange_;
};

}  // namespace tracewell
