// SPDX-License-Identifier: GPL-3.0-or-later
#include "Termination.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <utility>

#ifdef Q_OS_UNIX
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#endif

namespace tracewell {

#ifdef Q_OS_UNIX
namespace {

constexpr std::array<int, 3> endingSignals = {SIGTERM, SIGINT, SIGHUP};

/// A signal can do no more than write a byte; the event loop reads it.
std::array<int, 2> signalPipe = {-1, -1};

void signalled(int) {
  const int interrupted = errno;
  const char byte = 0;
  static_cast<void>(!::write(signalPipe[1], &byte, 1));
  errno = interrupted;
}

}  // namespace
#endif

Termination::Termination(std::function<void()> end) : end_(std::move(end)) {
  // A session that ends goes on without asking the user anything.
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { end_(); }, Qt::DirectConnection);
  watchSignals();
}

#ifdef Q_OS_UNIX
void Termination::watchSignals() {
  if (::pipe(signalPipe.data()) != 0) return;
  auto* arrival = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
  connect(arrival, &QSocketNotifier::activated, this, [this, arrival] {
    arrival->setEnabled(false);
    end_();
  });
  for (const int number : endingSignals) std::signal(number, signalled);
}

Termination::~Termination() {
  for (const int number : endingSignals) std::signal(number, SIG_DFL);
}
#else
void Termination::watchSignals() {}

Termination::~Termination() = default;
#endif

}  // namespace tracewell
