// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DeviceChannel.h"
#include "WindowsSerialDevice.h"

namespace tracewell {

/// A COM port of this machine.
class WindowsSerialChannel : public DeviceChannel {
 public:
  /// Opens `device`, a name such as "COM3". Raises deviceError with the system's words.
  WindowsSerialChannel(const QString& device, const LineSettings& settings);

 private:
  /// Takes the port over.
  WindowsSerialChannel(const QString& device, WindowsSerialDevice* port);

  /// Nothing is kept back.
  void flush() override {}
  void limitFetching(qint64 bytes) override { port_.setFetching(bytes == 0); }

  WindowsSerialDevice& port_;
};

}  // namespace tracewell
