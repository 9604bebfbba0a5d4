// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>
#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

#include "ByteChannel.h"

namespace tracewell {

/// A line over one of the toolkit's devices: the common part of serial devices and device servers.
class DeviceChannel : public ByteChannel {
 public:
  void write(std::string_view bytes) override;
  std::string read(int timeOut) override;
  void rest(int milliseconds) override;

 protected:
  /// `name` begins every error description.
  DeviceChannel(const QString& name, std::unique_ptr<QIODevice> device);

  /// Sends what is buffered in the device.
  virtual void flush() = 0;
  /// Limits the bytes that the device may fetch before it is read; 0 for no limit.
  virtual void limitFetching(qint64 bytes) = 0;

  /// Call it when bytes have arrived.
  void announce();
  /// Takes what has arrived out of the device, for the next read.
  void fetch();
  /// Call it with the device's words when it has failed. Only the first failure counts: a device
  /// that is gone reports the same one endlessly until it is closed.
  void fail(const QString& reason);
  bool hasFailed() const { return !failure_.isNull(); }
  [[noreturn]] void raiseFailure() const;

  /// The receiver of the device's signals.
  QObject& context() { return context_; }

 private:
  void endRest();
  void tell() const;

  QString name_;
  std::unique_ptr<QIODevice> device_;
  QString failure_;
  /// What was fetched and not read yet.
  QByteArray rest_;
  bool isAnnounced_ = false;
  QTimer resting_;
  bool isResting_ = false;
  /// Declared last, so that pending announcements are dropped before anything else is destroyed.
  QObject context_;
};

}  // namespace tracewell
