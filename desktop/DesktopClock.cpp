// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopClock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QThread>
#include <QTimer>

#include "QtValues.h"

namespace tracewell {

DesktopClock::DesktopClock() {
  sinceStart_.start();
}

std::int64_t DesktopClock::milliseconds() const {
  return sinceStart_.elapsed();
}

void DesktopClock::pumpEvents() {
  QCoreApplication::processEvents();
  QThread::msleep(1);
}

void DesktopClock::breathe() {
  constexpr int longest = 10;
  QCoreApplication::processEvents(QEventLoop::AllEvents, longest);
}

void DesktopClock::sleep(int milliseconds) {
  QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void DesktopClock::callAfter(int delay, std::function<void()> action) {
  QTimer::singleShot(delay, Qt::PreciseTimer, &context_, std::move(action));
}

std::string DesktopClock::dateAndTime() const {
  return fromQt(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

}  // namespace tracewell
