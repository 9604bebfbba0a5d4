// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtTcpChannel.h"

#include <QThread>
#include <atomic>
#include <memory>
#include <thread>

#include "Error.h"
#include "Modules.h"
#include "QtValues.h"
#include "SerialPort.h"

namespace tracewell {
namespace {

/// Milliseconds between two looks whether something has come of a wait.
constexpr int interval = 10;
/// A server that greets does so at once: it is heard after as long as it took to answer, and so
/// much more. Milliseconds.
constexpr int greeting = 100;

Network& network() {
  return moduleOf<Network>(QStringLiteral("tracewell-network"), deviceError);
}

struct LookUp {
  Network::Host found;
  std::atomic<bool> isOver = false;
};

/// The system's own look-up has no end of its own where the name server is away. Nobody waits for
/// its thread, not even the end of the program, as it would for one of the toolkit's.
std::shared_ptr<const LookUp> beginLookUp(const QString& host) {
  const auto lookUp = std::make_shared<LookUp>();
  std::thread([lookUp, host, &network = network()] {
    lookUp->found = network.find(host);
    lookUp->isOver = true;
  }).detach();
  return lookUp;
}

}  // namespace

QtTcpChannel::QtTcpChannel(const ServerAddress& address, StandBy& standBy)
    : QtTcpChannel(address, standBy, network().makeSocket()) {
  sinceBegin_.start();
  limitFetching(0);
  connectToOneOf(addressesOf(toQt(address.host)), address.port);
  dropGreeting();
  QObject::connect(&socket_.device(), &QIODevice::readyRead, &context(), [this] { announce(); });
  socket_.whenFailed(context(), [this] { fail(socket_.device().errorString()); });
}

QtTcpChannel::QtTcpChannel(const ServerAddress& address, StandBy& standBy, TcpSocket& socket)
    : DeviceChannel(toQt(addressText(address)), std::unique_ptr<QIODevice>(&socket.device())),
      standBy_(standBy),
      socket_(socket) {}

QStringList QtTcpChannel::addressesOf(const QString& host) {
  if (network().isAddress(host)) return {host};
  const std::shared_ptr<const LookUp> lookUp = beginLookUp(host);
  while (!lookUp->isOver && left() > 0) {
    QThread::msleep(interval);
    turn();
  }
  if (!lookUp->isOver) endWith(QStringLiteral("the name was not found in time"));
  if (lookUp->found.addresses.isEmpty()) endWith(lookUp->found.failure);
  return lookUp->found.addresses;
}

/// A name may have addresses at which nobody answers; each gets its share of the time.
void QtTcpChannel::connectToOneOf(const QStringList& hosts, std::uint16_t port) {
  for (qsizetype i = 0; i < hosts.size(); ++i) {
    const int share = left() / static_cast<int>(hosts.size() - i);
    if (isConnected(hosts[i], port, share)) return;
  }
  const bool isSilent = socket_.state() == TcpSocket::State::connecting;
  endWith(isSilent ? QStringLiteral("the server did not answer in time")
                   : socket_.device().errorString());
}

/// The toolkit's own wait would end the attempt with its time-out, so the events are waited for.
bool QtTcpChannel::isConnected(const QString& host, std::uint16_t port, int timeOut) {
  QElapsedTimer sinceCall;
  sinceCall.start();
  socket_.connectTo(host, port);
  while (socket_.state() == TcpSocket::State::connecting && sinceCall.elapsed() < timeOut) {
    QThread::msleep(interval);
    turn();
  }
  if (socket_.state() != TcpSocket::State::connected) return false;
  distance_ = static_cast<int>(sinceCall.elapsed());
  return true;
}

/// If the server does not stop talking, the rest counts as unasked bytes.
void QtTcpChannel::dropGreeting() {
  QElapsedTimer sinceHeard;
  sinceHeard.start();
  while (left() > 0 && sinceHeard.elapsed() < distance_ + greeting) {
    socket_.device().waitForReadyRead(interval);
    if (!socket_.device().readAll().isEmpty()) sinceHeard.restart();
    if (socket_.state() != TcpSocket::State::connected) endWith(socket_.device().errorString());
    turn();
  }
}

int QtTcpChannel::left() const {
  return SerialPort::defaultReadTimeOut - static_cast<int>(sinceBegin_.elapsed());
}

void QtTcpChannel::turn() {
  standBy_.turn();
  if (standBy_.isGivenUp())
    throw Error(portReadTimeOut, "RS232", "The instrument did not reply in time");
}

void QtTcpChannel::endWith(const QString& reason) {
  fail(reason);
  raiseFailure();
}

}  // namespace tracewell
