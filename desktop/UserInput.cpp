// SPDX-License-Identifier: GPL-3.0-or-later
#include "UserInput.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace tracewell {
namespace {

/// Milliseconds between two looks whether the wait is over.
constexpr int lookInterval = 5;

/// A dialog's window, or a popup's; the main window has none above it.
bool isAboveMain(const QObject* receiver) {
  const auto* window = qobject_cast<const QWindow*>(receiver);
  return window != nullptr && window->transientParent() != nullptr;
}

bool isEscape(const QEvent& event) {
  const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
  return isKey && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// A shortcut that was kept goes straight to its action, past the window that has opened since.
bool isBehindModalWindow(const QObject* receiver, const QEvent& event) {
  if (event.type() != QEvent::Shortcut) return false;
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr) return false;
  const auto isInside = [modal](const QObject* object) {
    const auto* widget = qobject_cast<const QWidget*>(object);
    return widget != nullptr && widget->window() == modal;
  };
  if (const auto* action = qobject_cast<const QAction*>(receiver))
    return std::ranges::none_of(action->associatedObjects(), isInside);
  return !isInside(receiver) && !isInside(receiver->parent());
}

/// Only the user's own closing: what else closes a window, as Qt does with popups before a dialog
/// is shown, repeats it until it is obeyed.
bool isTitleBarOfDialog(const QObject* receiver, const QEvent& event) {
  return event.spontaneous() && qobject_cast<const QDialog*>(receiver) != nullptr;
}

bool isUserInput(const QObject* receiver, const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      return true;
    case QEvent::Close:
      return isTitleBarOfDialog(receiver, event);
    default:
      return false;
  }
}

/// A menu or dialog that has closed since would still obey what was kept for it.
bool isForClosedWindow(const QObject* receiver, const QEvent& event) {
  const auto* window = qobject_cast<const QWindow*>(receiver);
  if (window == nullptr || window->isVisible() || event.spontaneous()) return false;
  return event.type() == QEvent::Close || isUserInput(receiver, event);
}

}  // namespace

UserInput::UserInput(const Gate& gate, StandBy& standBy) : gate_(gate), standBy_(standBy) {
  QCoreApplication::instance()->installEventFilter(this);
}

/// All at once and not before the wait is over: what came later may not overtake what is kept.
void UserInput::release() {
  if (gate_.isHeld()) {
    QTimer::singleShot(lookInterval, this, [this] { release(); });
    return;
  }
  for (Kept& kept : std::exchange(kept_, {}))
    if (kept.receiver) QCoreApplication::postEvent(kept.receiver, kept.event.release());
}

bool UserInput::eventFilter(QObject* receiver, QEvent* event) {
  if (endWaits(receiver, *event)) return true;
  if (isForClosedWindow(receiver, *event)) return true;
  if (!gate_.isHeld() && isBehindModalWindow(receiver, *event)) return true;
  if ((!gate_.isHeld() && kept_.empty()) || !isUserInput(receiver, *event)) return false;
  keep(receiver, *event);
  // Whoever closes a window hears that it is still open.
  if (event->type() == QEvent::Close) event->ignore();
  return true;
}

/// Between two waits of a burst, too, unless the key belongs to a dialog.
bool UserInput::endWaits(const QObject* receiver, QEvent& event) {
  if (!isEscape(event) || !standBy_.isInBurst()) return false;
  if (!gate_.isHeld() && (isAboveMain(receiver) || !receiver->isWindowType())) return false;
  event.accept();
  standBy_.giveUp();
  return true;
}

/// Only the last place of a movement counts. A dialog is closed again as it was: through its
/// window.
void UserInput::keep(QObject* receiver, const QEvent& event) {
  if (event.type() == QEvent::Close) receiver = static_cast<QWidget*>(receiver)->windowHandle();
  const bool isMove = event.type() == QEvent::MouseMove;
  const bool isNext = !kept_.empty() && kept_.back().receiver == receiver;
  if (isMove && isNext && kept_.back().event->type() == QEvent::MouseMove) kept_.pop_back();
  if (kept_.empty()) QTimer::singleShot(lookInterval, this, [this] { release(); });
  kept_.push_back({receiver, std::unique_ptr<QEvent>(event.clone())});
}

}  // namespace tracewell
