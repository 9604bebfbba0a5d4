// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>
#include <QStringList>
#include <QtPlugin>
#include <functional>

namespace tracewell {

/// A TCP connection of the toolkit's.
class TcpSocket {
 public:
  enum class State { closed, connecting, connected };

  /// Carries the bytes. The socket goes with it.
  virtual QIODevice& device() = 0;

  /// Begins to connect, to an address instead of a name; the connection that there was is gone.
  virtual void connectTo(const QString& address, quint16 port) = 0;
  virtual State state() const = 0;
  virtual void flush() = 0;
  /// How many bytes it may fetch before it is read.
  virtual void limitFetching(qint64 bytes) = 0;
  /// Called as long as `context` lives, whenever the connection has failed; the device says why.
  virtual void whenFailed(QObject& context, std::function<void()> told) = 0;

 protected:
  ~TcpSocket() = default;
};

/// The toolkit's network library.
class Network {
 public:
  struct Host {
    QStringList addresses;
    /// Why there are none.
    QString failure;
  };

  virtual ~Network() = default;

  /// Deleted with its device.
  virtual TcpSocket& makeSocket() = 0;
  virtual bool isAddress(const QString& name) const = 0;
  /// Takes as long as the system does; may be called on any thread.
  virtual Host find(const QString& name) const = 0;
};

}  // namespace tracewell

Q_DECLARE_INTERFACE(tracewell::Network, "tracewell.Network/" TRACEWELL_VERSION)
