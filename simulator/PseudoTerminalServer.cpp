// SPDX-License-Identifier: GPL-3.0-or-later
#include "PseudoTerminalServer.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

namespace tracewell {
namespace {

namespace fs = std::filesystem;

volatile std::sig_atomic_t isAskedToEnd = 0;

void askToEnd(int) {
  isAskedToEnd = 1;
}

double millisecondsNow() {
  using std::chrono::duration;
  return duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

int orRaise(int result, const char* what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
  return result;
}

/// Signals come during waits only, so that none is lost between a look at isAskedToEnd and the next
/// wait. One that was ignored, as in the background of a shell, stays so. The result is what waits
/// let through.
sigset_t endOnSignals() {
  struct sigaction action = {};
  action.sa_handler = askToEnd;
  sigset_t ending;
  sigemptyset(&ending);
  for (const int number : {SIGINT, SIGTERM}) {
    sigaddset(&ending, number);
    struct sigaction before = {};
    sigaction(number, nullptr, &before);
    if (before.sa_handler != SIG_IGN) sigaction(number, &action, nullptr);
  }
  sigset_t before;
  sigprocmask(SIG_BLOCK, &ending, &before);
  for (const int number : {SIGINT, SIGTERM}) sigdelset(&before, number);
  return before;
}

}  // namespace

PseudoTerminalServer::PseudoTerminalServer(Instrument& instrument, Options options)
    : instrument_(instrument), options_(std::move(options)), duringWaits_(endOnSignals()) {
  plugIn();
}

PseudoTerminalServer::~PseudoTerminalServer() {
  pullPlug();
}

void PseudoTerminalServer::plugIn() {
  instrument_.plugIn();
  instrument_.setLineRate(options_.rate);
  controller_ = orRaise(posix_openpt(O_RDWR | O_NOCTTY), "posix_openpt");
  orRaise(grantpt(controller_), "grantpt");
  orRaise(unlockpt(controller_), "unlockpt");
  orRaise(fcntl(controller_, F_SETFL, O_NONBLOCK), "fcntl");
  path_ = ptsname(controller_);
  terminal_ = orRaise(open(path_.c_str(), O_RDWR | O_NOCTTY), "open");
  termios attributes;
  orRaise(tcgetattr(terminal_, &attributes), "tcgetattr");
  cfmakeraw(&attributes);
  orRaise(tcsetattr(terminal_, TCSANOW, &attributes), "tcsetattr");
  if (options_.link.empty()) return;
  // A link may be left over from before. What is no link is somebody's file and stays.
  if (fs::is_symlink(fs::symlink_status(options_.link))) unlink(options_.link.c_str());
  orRaise(symlink(path_.c_str(), options_.link.c_str()), "symlink");
}

void PseudoTerminalServer::pullPlug() {
  if (controller_ < 0) return;
  std::error_code ignored;
  if (fs::read_symlink(options_.link, ignored) == path_) unlink(options_.link.c_str());
  close(terminal_);
  close(std::exchange(controller_, -1));
}

int PseudoTerminalServer::millisecondsToNextByte() const {
  const std::optional<double> next = instrument_.nextByteAt();
  if (!next) return -1;
  return std::max(1, static_cast<int>(std::ceil(*next - millisecondsNow())));
}

void PseudoTerminalServer::wait(std::span<pollfd> watched, int milliseconds) const {
  constexpr int perSecond = 1000;
  const timespec duration = {milliseconds / perSecond, milliseconds % perSecond * 1'000'000L};
  ppoll(watched.data(), watched.size(), milliseconds < 0 ? nullptr : &duration, &duringWaits_);
}

void PseudoTerminalServer::serve() {
  while (!isAskedToEnd) {
    std::array<pollfd, 2> watched = {
        {{controller_, POLLIN, 0}, {hasStandardInput_ ? STDIN_FILENO : -1, POLLIN, 0}}};
    wait(watched, millisecondsToNextByte());
    if (watched[0].revents & POLLIN) takeBytes();
    if (watched[1].revents != 0) takeFaultLines();
    sendDueBytes();
    if (!instrument_.hasHungUp()) continue;
    pullPlug();
    if (options_.replugAfter < 0) return;
    // A signal ends this wait, too.
    wait({}, options_.replugAfter);
    if (isAskedToEnd) return;
    plugIn();
  }
}

void PseudoTerminalServer::takeBytes() {
  std::array<char, 512> buffer;
  const ssize_t count = ::read(controller_, buffer.data(), buffer.size());
  if (count > 0)
    instrument_.receive({buffer.data(), static_cast<std::size_t>(count)}, millisecondsNow());
}

/// What does not fit, because nobody reads, is lost as it is on a real line.
void PseudoTerminalServer::sendDueBytes() {
  const std::string bytes = instrument_.transmit(millisecondsNow());
  if (!bytes.empty() && ::write(controller_, bytes.data(), bytes.size()) < 0 && errno != EAGAIN)
    throw std::system_error(errno, std::generic_category(), "write");
}

void PseudoTerminalServer::takeFaultLines() {
  std::array<char, 256> buffer;
  const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
  hasStandardInput_ = count > 0;
  for (ssize_t i = 0; i < count; ++i) {
    const char byte = buffer[static_cast<std::size_t>(i)];
    if (byte != '\n') {
      faultLine_ += byte;
      continue;
    }
    if (!instrument_.setFault(faultLine_)) std::cerr << "no such fault: " << faultLine_ << "\n";
    faultLine_.clear();
  }
}

}  // namespace tracewell
