// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "CommandExchange.h"

namespace tracewell {

/// The periodic fetch of waveform records, from the tick to the trace.
class Acquisition {
 public:
  Acquisition(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog)
      : main_(main), exchange_(exchange), errorLog_(errorLog) {}

  /// Requests the record of the next displayed channel; both displayed take turns.
  void tmDSO_Timer();

  /// Requests one record (":ACQ1:POIN"); it arrives through DataReady. Logs its failure.
  void AcqDSO(std::int16_t channel);

  /// Takes a record: keeps it, plots it and shows it as text. Reports no error; what fails is left
  /// out.
  void DataReady(const LineRecord& record);

  /// Pauses and resumes the periodic fetch around dialogs and long exchanges. They are not mirror
  /// images: resuming needs no pausing before, and leaves message 3 on the start button.
  void StopAcq();
  void ResumeAcq();
  /// How the settings dialogs end: starts the periodic fetch and leaves message 2 on the button.
  void runAcquisition();

  /// Runs or stops the instrument's own acquisition; the periodic fetch goes on.
  void cmdRunStop_Click();

  /// Records that have come; no more are counted beyond 32767.
  std::int16_t WaveCount = 0;

 private:
  void keepRecord(Channel& channel, const LineRecord& record);

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  /// 1 or 2: whose record is requested next.
  std::int16_t AcqChan = 1;
  /// A record has been requested, or the acquisition resumed, and StopAcq has not given it up
  /// since.
  bool PortBusy = false;
};

}  // namespace tracewell
