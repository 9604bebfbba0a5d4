// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSerialPort>

#include "ByteChannel.h"

namespace tracewell {

/// A serial device of this machine.
class QtSerialChannel : public ByteChannel {
 public:
  /// Opens `device`, a name such as "ttyUSB0" or a path. Raises deviceError with the system's
  /// words.
  QtSerialChannel(const QString& device, const LineSettings& settings);
  ~QtSerialChannel() override;

  void write(std::string_view bytes) override;
  std::string read(int timeOut) override;

 private:
  void watch(QSerialPort::SerialPortError error);
  void announce();
  [[noreturn]] void raiseFailure() const;

  QString device_;
  QSerialPort port_;
  QString failure_;
  /// What had arrived when the device was found gone.
  QByteArray rest_;
  bool isAnnounced_ = false;
  /// Declared last: announcements that are still due are dropped before anything else goes.
  QObject context_;
};

}  // namespace tracewell
