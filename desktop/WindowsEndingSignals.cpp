// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <atomic>
#include <utility>

#include "EndingSignals.h"

namespace tracewell {
namespace {

/// What the system tells on a thread of its own goes to the one of this object.
std::atomic<QObject*> listener = nullptr;
std::function<void()> told;

/// Where the console or the session closes, the system ends the program as soon as this returns,
/// and after some seconds in any case.
BOOL WINAPI consoleEnds(DWORD event) {
  QObject* const object = listener.exchange(nullptr);
  if (object != nullptr) QMetaObject::invokeMethod(object, told, Qt::QueuedConnection);
  const bool isLast = event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT;
  if (isLast) ::Sleep(INFINITE);
  return TRUE;
}

}  // namespace

EndingSignals::EndingSignals(std::function<void()> end)
    : end_(std::move(end)), arrival_(std::make_unique<QObject>()) {
  told = end_;
  listener = arrival_.get();
  ::SetConsoleCtrlHandler(consoleEnds, TRUE);
}

EndingSignals::~EndingSignals() {
  ::SetConsoleCtrlHandler(consoleEnds, FALSE);
  listener = nullptr;
}

}  // namespace tracewell
