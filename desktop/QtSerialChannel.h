// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSerialPort>

#include "DeviceChannel.h"

namespace tracewell {

/// Sets the port, which need not be open, as the settings say.
void setLine(QSerialPort& port, const LineSettings& settings);

/// A serial device of this machine.
class QtSerialChannel : public DeviceChannel {
 public:
  /// Opens `device`, a name such as "ttyUSB0" or a path. Raises deviceError with the system's
  /// words.
  QtSerialChannel(const QString& device, const LineSettings& settings);
  ~QtSerialChannel() override;

 private:
  /// Takes the port over.
  QtSerialChannel(const QString& device, QSerialPort* port);

  void open(const QString& device, const LineSettings& settings);
  void flush() override { port_.flush(); }
  void limitFetching(qint64 bytes) override { port_.setReadBufferSize(bytes); }
  void watch(QSerialPort::SerialPortError error);

  QSerialPort& port_;
};

}  // namespace tracewell
