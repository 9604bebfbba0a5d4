// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHostAddress>
#include <QHostInfo>
#include <QTcpSocket>

#include "Network.h"

namespace tracewell {
namespace {

class Socket : public QTcpSocket, public TcpSocket {
 public:
  Socket() {
    QObject::connect(this, &QTcpSocket::connected, this, [this] {
      setSocketOption(LowDelayOption, 1);
      setSocketOption(KeepAliveOption, 1);
    });
  }

  QIODevice& device() override { return *this; }

  void connectTo(const QString& address, quint16 port) override {
    abort();
    connectToHost(QHostAddress(address), port);
  }

  State state() const override {
    switch (QTcpSocket::state()) {
      case ConnectedState:
        return State::connected;
      case ConnectingState:
        return State::connecting;
      default:
        return State::closed;
    }
  }

  void flush() override { QTcpSocket::flush(); }
  void limitFetching(qint64 bytes) override { setReadBufferSize(bytes); }

  void whenFailed(QObject& context, std::function<void()> told) override {
    QObject::connect(this, &QTcpSocket::errorOccurred, &context,
                     [this, told = std::move(told)](SocketError error) {
                       // A read that nothing came of is one, too, and leaves the line as it is.
                       if (error != SocketTimeoutError || state() != State::connected) told();
                     });
  }
};

}  // namespace

class NetworkModule : public QObject, public Network {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "tracewell-network")
  Q_INTERFACES(tracewell::Network)

 public:
  TcpSocket& makeSocket() override { return *new Socket; }

  bool isAddress(const QString& name) const override { return !QHostAddress(name).isNull(); }

  Host find(const QString& name) const override {
    const QHostInfo found = QHostInfo::fromName(name);
    Host host{{}, found.errorString()};
    for (const QHostAddress& address : found.addresses()) host.addresses << address.toString();
    return host;
  }
};

}  // namespace tracewell

#include "NetworkModule.moc"
