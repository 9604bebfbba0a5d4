// SPDX-License-Identifier: GPL-3.0-or-later
#include "Acquisition.h"

#include "ConnectionIndicator.h"
#include "Numbers.h"
#include "PortNotice.h"
#include "RecordScales.h"
#include "TraceAge.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

/// Skips a step that fails and goes on with the next.
template <class Step>
void ignoringErrors(Step step) {
  try {
    step();
  } catch (const Error&) {
    // Nothing is reported from inside the record handler.
  }
}

}  // namespace

void Acquisition::tmDSO_Timer() {
  const auto [isChannel1On, isChannel2On] = main_.ChanOn;
  if (isChannel1On && isChannel2On)
    main_.AcqChan = main_.AcqChan == 1 ? 2 : 1;
  else if (isChannel1On)
    main_.AcqChan = 1;
  else if (isChannel2On)
    main_.AcqChan = 2;
  AcqDSO(main_.AcqChan);
}

void Acquisition::AcqDSO(std::int16_t channel) {
  SerialPort& port = main_.services().port;
  try {
    port.textMode = false;
    port.prepare();
    port.write(":ACQ" + std::to_string(channel) + ":POIN\r\n", SerialPort::Expects::record);
    port.tag = std::to_string(channel);
    port.beginRead(WaveformRecord::byteCount);
    main_.PortBusy = true;
    noteRequestScales(main_, channel);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "AcqDSO : ");
  }
}

void Acquisition::DataReady(const std::string& data) {
  SerialPort& port = main_.services().port;
  std::int16_t channel = 0;
  std::int16_t offset = 0;
  ignoringErrors([&] { channel = toInt16(port.tag); });
  const bool isSameSweep = data == (channel == 1 ? main_.Ch1Raw : main_.Ch2Raw);
  ignoringErrors([&] { offset = keepRecord(channel, data); });
  const Samples samples = decodeSamples(data, offset);
  ignoringErrors([&] { main_.graphDSO.plot(channel).plotXvsY(main_.XIndex, samples); });
  main_.txtMsg.text = recordText(channel, samples);
  markTrace(main_);
  noteRecordScales(main_, channel, isSameSweep);
  noteRecord(main_, channel);
  ignoringErrors([&] { port.reset(); });
  ignoringErrors([&] { main_.WaveCount = addInt16(main_.WaveCount, 1); });
}

/// Keeps the raw record; the result is the channel's vertical position in sample units.
std::int16_t Acquisition::keepRecord(std::int16_t channel, const std::string& data) {
  if (channel == 1) {
    main_.Ch1Raw = data;
    return toInt16(Graph::unitsPerDivision * main_.Ch1Pos);
  }
  main_.Ch2Raw = data;
  return mulInt16(main_.Ch2Pos, Graph::unitsPerDivision);
}

void Acquisition::StopAcq() {
  try {
    main_.tmDSO.enabled = false;
    if (main_.PortBusy) {
      main_.services().port.reset();
      main_.PortBusy = false;
    }
    showOnStart(main_, 2);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "StopAcq : ");
  }
}

void Acquisition::ResumeAcq() {
  showRunning(main_);
  main_.PortBusy = true;
  main_.tmDSO.enabled = true;
  showOnStart(main_, 3);
}

void Acquisition::RunAcq() {
  main_.tmDSO.enabled = true;
  showRunning(main_);
}

void Acquisition::cmdRunStop_Click() {
  if (main_.cmdRunStop.caption() != main_.Msg[5]) {
    exchange_.SendDSOCmd(":Stop");
    showOnRunStop(main_, 5);
  } else {
    exchange_.SendDSOCmd(":Run");
    showOnRunStop(main_, 6);
  }
}

}  // namespace tracewell
