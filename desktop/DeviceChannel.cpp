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
  QObject::connect(&resting_, &QTimer::timeout, &context_, [this] { tell(); });
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
  isResting_ = true;
  limitFetching(1);
  resting_.start(milliseconds);
}

/// The system holds what the device was not to fetch.
void DeviceChannel::endRest() {
  if (!isResting_) return;
  resting_.stop();
  limitFetching(0);
  if (device_->isOpen()) device_->waitForReadyRead(0);
  isResting_ = false;
}

std::string DeviceChannel::read(int timeOut) {
  endRest();
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

void DeviceChannel::fetch() {
  rest_ += device_->readAll();
  if (!rest_.isEmpty()) announce();
}

/// Out of the event loop and once for many arrivals.
void DeviceChannel::announce() {
  if (isAnnounced_ || isResting_) return;
  isAnnounced_ = true;
  QTimer::singleShot(0, &context_, [this] {
    isAnnounced_ = false;
    tell();
  });
}

/// The owner may destroy the channel in it.
void DeviceChannel::tell() const {
  const std::function<void()> owner = readable;
  if (owner) owner();
}

void DeviceChannel::raiseFailure() const {
  throw Error(deviceError, "RS232", fromQt(name_ + QStringLiteral(": ") + failure_));
}

}  // namespace tracewell
