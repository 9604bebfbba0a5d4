// SPDX-License-Identifier: GPL-3.0-or-later
#include "Termination.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <utility>

namespace tracewell {

Termination::Termination(std::function<void()> end) : end_(std::move(end)) {
  // A session that ends goes on without asking the user anything.
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { end_(); }, Qt::DirectConnection);
}

}  // namespace tracewell
