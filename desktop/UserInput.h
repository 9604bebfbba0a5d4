// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <memory>
#include <vector>

#include "StandBy.h"

namespace tracewell {

/// Stands between the user and the widgets while a handler waits for the instrument. What the user
/// does meanwhile is kept in its order and comes when the handler is done, unless that has opened a
/// window in front of it or closed what it was meant for; Escape ends the waits; the main window's
/// closing is let through, since it is obeyed at once.
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
