// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <functional>

namespace tracewell {

/// As long as it lives, a screen reader that hears what it is told. One at a time.
class Listener {
 public:
  explicit Listener(std::function<void(QAccessibleEvent&)> hears) {
    heard = std::move(hears);
    setActive(true);
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) { heard(*event); });
  }
  ~Listener() {
    QAccessible::installUpdateHandler(nullptr);
    setActive(false);
  }
  Listener(const Listener&) = delete;

 private:
  /// Only a platform's own code may.
  static void setActive(bool isActive) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isActive);
  }
  static inline std::function<void(QAccessibleEvent&)> heard;
};

}  // namespace tracewell
