// SPDX-License-Identifier: GPL-3.0-or-later
#include "BusyPointer.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QGuiApplication>

namespace tracewell {
namespace {

/// Milliseconds. A reply usually comes sooner.
constexpr qint64 shortWait = 250;

}  // namespace

BusyPointer::BusyPointer(const Gate& gate) : gate_(gate) {
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
          [this] { look(); });
}

BusyPointer::~BusyPointer() {
  show(false);
}

/// Runs whenever the event loop does, inside a wait or not.
void BusyPointer::look() {
  if (!gate_.isHeld()) {
    sinceHeld_.invalidate();
    show(false);
  } else if (!sinceHeld_.isValid()) {
    sinceHeld_.start();
  } else if (sinceHeld_.hasExpired(shortWait)) {
    show(true);
  }
}

void BusyPointer::show(bool isBusy) {
  if (isBusy == isShown_) return;
  isShown_ = isBusy;
  if (isBusy)
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace tracewell
