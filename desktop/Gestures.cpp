// SPDX-License-Identifier: GPL-3.0-or-later
#include "Gestures.h"

#include <QEvent>
#include <QKeyEvent>
#include <utility>

#include "ShownText.h"

namespace tracewell {
namespace {

/// Shows every event of the watched object to `action` first, which says whether it has used it up.
class EventWatch : public QObject {
 public:
  using Action = std::function<bool(QEvent&)>;
  EventWatch(QObject* watched, Action action) : QObject(watched), action_(std::move(action)) {
    watched->installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override { return action_(*event); }

 private:
  Action action_;
};

}  // namespace

void onDoubleClick(QObject* watched, const std::function<void()>& action) {
  new EventWatch(watched, [action](const QEvent& event) {
    const bool isDoubleClick = event.type() == QEvent::MouseButtonDblClick;
    if (isDoubleClick) action();
    return isDoubleClick;
  });
}

void onEnter(QObject* watched, const std::function<void()>& action) {
  new EventWatch(watched, [action](const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isEnter) action();
    return isEnter;
  });
}

void takeOnEnter(QComboBox& box, const ComboBox& control) {
  new EventWatch(box.lineEdit(), [&box, &control](const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isEnter || box.currentText() == shownText(control.text(), roomOfEditor)) return false;
    emit box.lineEdit()->editingFinished();
    return true;
  });
}

void giveUpSelectAll(QLineEdit& line) {
  new EventWatch(&line, [&line](QEvent& event) {
    const bool isOurs = event.type() == QEvent::ShortcutOverride && line.text().isEmpty() &&
                        static_cast<QKeyEvent&>(event).matches(QKeySequence::SelectAll);
    if (isOurs) event.ignore();
    return isOurs;
  });
}

void onMoveByKey(QObject* list, const std::function<void()>& action) {
  new EventWatch(list, [action, isPressed = false](const QEvent& event) mutable {
    if (event.type() == QEvent::KeyPress && !static_cast<const QKeyEvent&>(event).isAutoRepeat())
      isPressed = true;
    else if (event.type() == QEvent::FocusOut)
      isPressed = false;
    else if (event.type() == QEvent::KeyRelease && std::exchange(isPressed, false))
      action();
    return false;
  });
}

}  // namespace tracewell
