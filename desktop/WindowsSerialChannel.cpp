// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowsSerialChannel.h"

namespace tracewell {

WindowsSerialChannel::WindowsSerialChannel(const QString& device, const LineSettings& settings)
    : WindowsSerialChannel(device, new WindowsSerialDevice) {
  if (!port_.openPort(device, settings)) {
    fail(port_.errorString());
    raiseFailure();
  }
  port_.failed = [this] {
    fail(QStringLiteral("the device is gone (%1)").arg(port_.errorString()));
  };
  QObject::connect(&port_, &QIODevice::readyRead, &context(), [this] { announce(); });
}

WindowsSerialChannel::WindowsSerialChannel(const QString& device, WindowsSerialDevice* port)
    : DeviceChannel(device, std::unique_ptr<QIODevice>(port)), port_(*port) {}

}  // namespace tracewell
