// SPDX-License-Identifier: GPL-3.0-or-later
#include "Timer.h"

#include <utility>

namespace tracewell {

Timer::Timer(Window& owner, int interval)
    : enabled(*this, false,
              [this](bool isNew) {
                if (!isNew) return;
                running_.reset();
                if (!enabled()) return;
                enabledAt_ = services_.clock.milliseconds();
                start();
              }),
      services_(owner.services()),
      interval_(interval) {}

void Timer::setInterval(int interval) {
  if (std::exchange(interval_, interval) != interval && enabled()) start();
}

void Timer::start() {
  running_ = std::make_shared<const int>(interval_);
  services_.clock.callAfter(interval_, [this, alive = std::weak_ptr(running_)] {
    if (!alive.expired()) tick();
  });
}

void Timer::tick() {
  start();
  services_.dispatcher.dispatch([this] { timer.raise(); });
}

}  // namespace tracewell
