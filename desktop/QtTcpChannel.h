// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QStringList>

#include "DeviceChannel.h"
#include "Network.h"
#include "ServerAddress.h"
#include "StandBy.h"

namespace tracewell {

/// The line behind a serial device server, which keeps its settings: raw TCP.
class QtTcpChannel : public DeviceChannel {
 public:
  /// Finds the host, connects, and drops what the server says by itself, all within
  /// SerialPort::defaultReadTimeOut; the waits are those of `standBy`. Raises deviceError with the
  /// system's words, portReadTimeOut when the user has given up; throws ProgramEnded.
  QtTcpChannel(const ServerAddress& address, StandBy& standBy);

 private:
  QtTcpChannel(const ServerAddress& address, StandBy& standBy, TcpSocket& socket);

  void flush() override { socket_.flush(); }
  /// Never any number: a server that floods the line must not fill the memory, nor a turn.
  void limitFetching(qint64 bytes) override {
    socket_.limitFetching(bytes == 0 ? mostFetched : bytes);
  }
  static constexpr qint64 mostFetched = 1 << 16;
  QStringList addressesOf(const QString& host);
  void connectToOneOf(const QStringList& hosts, std::uint16_t port);
  bool isConnected(const QString& host, std::uint16_t port, int timeOut);
  void dropGreeting();
  /// Milliseconds that opening may still take.
  int left() const;
  /// Lets the desktop have its turn; raises what giving up does.
  void turn();
  [[noreturn]] void endWith(const QString& reason);

  StandBy& standBy_;
  TcpSocket& socket_;
  QElapsedTimer sinceBegin_;
  /// How long the server took to answer the connection.
  int distance_ = 0;
};

}  // namespace tracewell
