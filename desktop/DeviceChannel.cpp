// SPDX-License-Identifier: GPL-3.0-or-later
#include "DeviceChannel.h"

#include <QTimer>
#include <utility>

#include "Error.h"
#include "QtValues.h"

namespace tracewell {

DeviceChannel::DeviceChannel(const QString& name, std::unique_ptr<QIODevice> device)
    : name_(name), device_(std::move(device)) {}

void DeviceChannel::write(std::string_view bytes) {
  if (hasFailed()) raiseFailure();
  const auto written = device_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  if (written != static_cast<qint64>(bytes.size()) && !hasFailed())
    failure_ = device_->errorString();
  flush();
  if (hasFailed()) raiseFailure();
}

std::string DeviceChannel::read(int timeOut) {
  QByteArray bytes = std::exchange(rest_, {});
  if (device_->isOpen()) bytes += device_->readAll();
  // Also with a time-out of zero: without events nobody else has fetched what the system holds.
  if (bytes.isEmpty() && !hasFailed() && device_->waitForReadyRead(timeOut))
    bytes = device_->readAll();
  if (bytes.isEmpty() && hasFailed()) raiseFailure();
  return bytes.toStdString();
}

void DeviceChannel::fail(const QString& reason) {
  if (hasFailed()) return;
  failure_ = reason;
  QTimer::singleShot(0, &context_, [this] {
    rest_ += device_->readAll();
    device_->close();
  });
  announce();
}

/// Out of the event loop and once for many arrivals. The owner may destroy the channel in it.
void DeviceChannel::announce() {
  if (isAnnounced_) return;
  isAnnounced_ = true;
  QTimer::singleShot(0, &context_, [this] {
    isAnnounced_ = false;
    const std::function<void()> tell = readable;
    if (tell) tell();
  });
}

void DeviceChannel::raiseFailure() const {
  throw Error(deviceError, "RS232", fromQt(name_ + QStringLiteral(": ") + failure_));
}

}  // namespace tracewell
