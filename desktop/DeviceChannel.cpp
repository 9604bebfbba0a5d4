// SPDX-License-Identifier: GPL-3.0-or-later
#include "DeviceChannel.h"

#include <QTimer>
#include <utility>

#include "Error.h"
#include "QtValues.h"

namespace tracewell {

DeviceChannel::DeviceChannel(const QString& name, std::unique_ptr<QIODevice> device)
    : name_(name), device_(std::move(device)) {
  resting_.setSingleShot(true);
  resting_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&resting_, &QTimer::timeout, &context_, [this] {
    limitFetching(0);
    announce();
  });
}

void DeviceChannel::write(std::string_view bytes) {
  if (hasFailed()) raiseFailure();
  const auto written = device_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  if (written != static_cast<qint64>(bytes.size()) && !hasFailed())
    failure_ = device_->errorString();
  flush();
  if (hasFailed()) raiseFailure();
}

/// A device that may fetch no more than it has does not wake anybody. A failure cannot be noticed
/// meanwhile.
void DeviceChannel::rest(int milliseconds) {
  if (hasFailed()) return;
  limitFetching(1);
  resting_.start(milliseconds);
}

std::string DeviceChannel::read(int timeOut) {
  if (resting_.isActive()) {
    resting_.stop();
    limitFetching(0);
  }
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
  if (isAnnounced_ || resting_.isActive()) return;
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
