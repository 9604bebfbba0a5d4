// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>
#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

#include "ByteChannel.h"

namespace tracewell {

/// A line over one of the toolkit's devices: what serial devices and servers of them have in
/// common.
class DeviceChannel : public ByteChannel {
 public:
  void write(std::string_view bytes) override;
  std::string read(int timeOut) override;
  void rest(int milliseconds) override;

 protected:
  /// `name` stands in front of every complaint.
  DeviceChannel(const QString& name, std::unique_ptr<QIODevice> device);

  /// Sends what waits in the device.
  virtual void flush() = 0;
  /// How many bytes the device may fetch by itself before it is read; 0 for any number.
  virtual void limitFetching(qint64 bytes) = 0;

  /// To be called when bytes have arrived.
  void announce();
  /// To be called with the device's words when it has failed. The first failure is the last: a
  /// device that is gone reports the same one without end until it is closed.
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
  /// What had arrived when the device was found gone.
  QByteArray rest_;
  bool isAnnounced_ = false;
  QTimer resting_;
  bool isResting_ = false;
  /// Declared last: announcements that are still due are dropped before anything else goes.
  QObject context_;
};

}  // namespace tracewell
