// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <memory>
#include <vector>

#include "StandBy.h"

namespace tracewell {

/// Stands between the user and the widgets while a handler waits for the instrument. Keeps what the
/// user does and replays it in order when the handler is done, unless the handler has opened a
/// window in front of its target or closed the target. Escape ends the waits. Closing the main
/// window passes through at once.
class UserInput : public QObject {
 public:
  UserInput(const Gate& gate, StandBy& standBy);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool endWaits(const QObject* receiver, QEvent& event);
  void release();
  void keep(QObject* receiver, const QEvent& event);

  struct Kept {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };

  const Gate& gate_;
  StandBy& standBy_;
  std::vector<Kept> kept_;
};

}  // namespace tracewell
