// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "CommandExchange.h"
#include "ScaleTables.h"

namespace tracewell {

/// Reads the instrument's scales and positions into the window.
class InstrumentState {
 public:
  InstrumentState(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog)
      : main_(main), exchange_(exchange), errorLog_(errorLog) {}

  /// Applies baud rate and port number of the setup table, then reads what the instrument is set
  /// to. Success shows in LinkOK; a silent instrument ends it at the first query. Logs its
  /// failure.
  void InitDSO();

  /// Shows the reply to a scale query and moves the knob to it, if the reply is in the table.
  void readScale(const std::string& query, ScaleKnob kind, ValueLabel& label, Knob& knob);

 private:
  void readAll();
  void applyBaudRateAndPort();
  std::string scaleReply(const std::string& query);
  std::string positionReply(const std::string& query);
  void showScaleOnly(ScaleKnob kind, ValueLabel& label, Knob& knob);
  void showScale(ScaleKnob kind, ValueLabel& label, Knob& knob);
  void readPosition(Channel& channel);

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
};

}  // namespace tracewell
