// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>
#include <QWinEventNotifier>
#include <array>
#include <functional>
#include <memory>

#include "ByteChannel.h"

namespace tracewell {

/// A COM port by the system's own calls.
class WindowsSerialDevice : public QIODevice {
 public:
  WindowsSerialDevice();
  ~WindowsSerialDevice() override;

  /// `name` is one such as "COM3". False, with the reason in errorString, if it cannot be had.
  bool openPort(const QString& name, const LineSettings& settings);
  void close() override;

  /// Whether arriving bytes are fetched, and announced. The system holds what is not.
  void setFetching(bool isFetching);

  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override { return arrived_.size() + QIODevice::bytesAvailable(); }
  bool waitForReadyRead(int milliseconds) override;

  /// Called once, with the system's words, when the port has failed; the reason is in errorString.
  std::function<void()> failed;

 protected:
  qint64 readData(char* data, qint64 size) override;
  qint64 writeData(const char* data, qint64 size) override;

 private:
  struct Transfer;
  using Port = void*;

  bool configure(const LineSettings& settings);
  void beginReading();
  bool isReadingOver(int milliseconds) const;
  /// Takes what has arrived; false if that failed.
  bool endReading();
  bool takeRead();
  bool takeQueue();
  bool endWriting();
  void failWith(unsigned long error);

  Port port_;
  std::unique_ptr<Transfer> reading_;
  std::unique_ptr<Transfer> writing_;
  std::unique_ptr<QWinEventNotifier> arrival_;
  std::array<char, 4096> buffer_;
  QByteArray arrived_;
  QByteArray sending_;
  bool isReading_ = false;
  bool isWriting_ = false;
  bool isFetching_ = true;
  bool hasFailed_ = false;
};

}  // namespace tracewell
