// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "EndingSignals.h"

namespace tracewell {
namespace {

constexpr std::array<int, 3> endingSignals = {SIGTERM, SIGINT, SIGHUP};

/// A signal can do no more than write a byte; the event loop reads it. A full pipe says enough.
std::array<int, 2> signalPipe = {-1, -1};

bool openPipe() {
  if (::pipe(signalPipe.data()) != 0) return false;
  for (const int end : signalPipe) {
    ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return true;
}

bool isIgnored(int number) {
  struct sigaction action = {};
  return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void signalled(int) {
  const int interrupted = errno;
  const char byte = 0;
  static_cast<void>(!::write(signalPipe[1], &byte, 1));
  errno = interrupted;
}

}  // namespace

EndingSignals::EndingSignals(std::function<void()> end) : end_(std::move(end)) {
  if (!openPipe()) return;
  auto arrival = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
  QObject::connect(arrival.get(), &QSocketNotifier::activated, arrival.get(),
                   [this, notifier = arrival.get()] {
                     notifier->setEnabled(false);
                     end_();
                   });
  arrival_ = std::move(arrival);
  for (const int number : endingSignals)
    if (!isIgnored(number)) std::signal(number, signalled);
}

EndingSignals::~EndingSignals() {
  if (arrival_ == nullptr) return;
  for (const int number : endingSignals)
    if (!isIgnored(number)) std::signal(number, SIG_DFL);
  arrival_.reset();
  for (int& end : signalPipe) ::close(std::exchange(end, -1));
}

}  // namespace tracewell
