// SPDX-License-Identifier: GPL-3.0-or-later
#include "Gestures.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QKeySequence>
#include <QTimer>
#include <algorithm>
#include <array>
#include <utility>

#include "ShownText.h"

namespace tracewell {
namespace {

constexpr std::array editingKeys = {QKeySequence::SelectAll,
                                    QKeySequence::Undo,
                                    QKeySequence::Redo,
                                    QKeySequence::Cut,
                                    QKeySequence::Copy,
                                    QKeySequence::Paste,
                                    QKeySequence::Delete,
                                    QKeySequence::Backspace,
                                    QKeySequence::DeleteStartOfWord,
                                    QKeySequence::DeleteEndOfWord,
                                    QKeySequence::DeleteEndOfLine,
                                    QKeySequence::DeleteCompleteLine,
                                    QKeySequence::MoveToStartOfLine,
                                    QKeySequence::MoveToEndOfLine,
                                    QKeySequence::MoveToPreviousWord,
                                    QKeySequence::MoveToNextWord,
                                    QKeySequence::SelectStartOfLine,
                                    QKeySequence::SelectEndOfLine,
                                    QKeySequence::SelectPreviousWord,
                                    QKeySequence::SelectNextWord,
                                    QKeySequence::MoveToPreviousChar,
                                    QKeySequence::MoveToNextChar,
                                    QKeySequence::MoveToStartOfBlock,
                                    QKeySequence::MoveToEndOfBlock};

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

void onEnter(QObject* watched, const std::function<bool()>& action) {
  new EventWatch(watched, [action](const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    return isEnter && action();
  });
}

void takeOnKeys(QComboBox& box, const ComboBox& control) {
  new EventWatch(&box, [&box, &control](const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool isTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    if (!isEnter && !isTab) return false;
    if (box.currentText() == shownText(control.text(), roomOfEditor)) return false;
    emit box.lineEdit()->editingFinished();
    return isEnter;
  });
}

void keepEditingKeys(QWidget& line) {
  new EventWatch(&line, [](QEvent& event) {
    if (event.type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    const bool isEditing = std::ranges::any_of(
        editingKeys, [&key](QKeySequence::StandardKey keys) { return key.matches(keys); });
    if (isEditing) event.accept();
    return isEditing;
  });
}

void keepCaretAtEnd(QLineEdit& line) {
  new EventWatch(&line, [&line](const QEvent& event) {
    if (event.type() != QEvent::FocusIn) return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    // It selects all behind this.
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
      QTimer::singleShot(0, &line, [&line] { line.end(false); });
    return false;
  });
}

void chooseCurrentFirst(QAbstractItemView& list) {
  new EventWatch(&list, [&list, tried = QPersistentModelIndex()](const QEvent& event) mutable {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    constexpr std::array toFirst = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp};
    const bool isToFirst = std::ranges::find(toFirst, key) != toFirst.end();
    // These go on to the last entry, which may be the same.
    if (!isToFirst && key != Qt::Key_End && key != Qt::Key_PageDown) return false;
    QItemSelectionModel& selected = *list.selectionModel();
    const QModelIndex current = list.currentIndex();
    if (selected.hasSelection() || current.row() != 0 || tried == current) return false;
    tried = current;
    selected.select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return isToFirst;
  });
}

void goByLines(QAbstractItemView& table) {
  new EventWatch(&table, [&table](const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    if (key != Qt::Key_Home && key != Qt::Key_End) return false;
    const QAbstractItemModel& lines = *table.model();
    table.setCurrentIndex(lines.index(key == Qt::Key_Home ? 0 : lines.rowCount() - 1, 0));
    return true;
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
