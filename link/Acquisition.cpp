// SPDX-License-Identifier: GPL-3.0-or-later
#include "Acquisition.h"

#include "ConnectionIndicator.h"
#include "Numbers.h"
#include "RecordArrival.h"
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
  const bool isChannel1On = main_.channels[0].isDisplayed;
  const bool isChannel2On = main_.channels[1].isDisplayed;
  if (isChannel1On && isChannel2On)
    AcqChan = AcqChan == 1 ? 2 : 1;
  else if (isChannel1On)
    AcqChan = 1;
  else if (isChannel2On)
    AcqChan = 2;
  AcqDSO(AcqChan);
}

void Acquisition::AcqDSO(std::int16_t channel) {
  SerialPort& port = main_.services().port;
  try {
    port.prepare();
    const KnownInstrument::Moment stamp = main_.known.now();
    main_.known.requested();
    port.request({.request = ":ACQ" + std::to_string(channel) + ":POIN\r\n",
                  .channel = channel,
                  .stamp = stamp,
                  .count = WaveformRecord::byteCount});
    PortBusy = true;
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "AcqDSO : ");
  }
}

void Acquisition::DataReady(const LineRecord& record) {
  std::int16_t shift = 0;
  Channel& channel = main_.channel(record.channel == 1 ? 1 : 2);
  keepRecord(channel, record);
  ignoringErrors([&] { main_.recordKept.raise(channel.number); });
  ignoringErrors([&] { shift = channel.recordShift(); });
  const Samples samples = decodeSamples(record.bytes, shift);
  ignoringErrors([&] {
    main_.graphDSO.plot(record.channel).plotXvsY(main_.XIndex, samples);
    channel.drawn(shift, main_.known);
  });
  main_.txtMsg.text = recordText(record.channel, samples);
  main_.marksDue.raise();
  ignoringErrors([&] { WaveCount = addInt16(WaveCount, 1); });
}

void Acquisition::keepRecord(Channel& channel, const LineRecord& fetched) {
  const SerialPort& port = main_.services().port;
  const RecordArrival arrival{channel.number,
                              {port.openPort(), port.openings()},
                              fetched.stamp,
                              main_.services().clock.milliseconds()};
  takeRecord(channel.record, fetched.bytes, arrival, main_.known);
}

void Acquisition::StopAcq() {
  try {
    main_.tmDSO.enabled = false;
    if (PortBusy) {
      main_.services().port.abandon();
      PortBusy = false;
    }
    showOnStart(main_, 2);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "StopAcq : ");
  }
}

void Acquisition::ResumeAcq() {
  showRunning(main_);
  PortBusy = true;
  main_.tmDSO.enabled = true;
  showOnStart(main_, 3);
}

void Acquisition::runAcquisition() {
  main_.tmDSO.enabled = true;
  showRunning(main_);
}

void Acquisition::cmdRunStop_Click() {
  if (main_.cmdRunStop.caption() != main_.state.Msg[5]) {
    exchange_.SendDSOCmd(":Stop");
    showOnRunStop(main_, 5);
  } else {
    exchange_.SendDSOCmd(":Run");
    showOnRunStop(main_, 6);
  }
}

}  // namespace tracewell
