// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

namespace tracewell {

/// What a user does with a widget to have its content in another program: the key for copying while
/// it has the focus, and "Copy" in its context menu.
class CopyGestures : public QObject {
  Q_OBJECT

 public:
  /// Belongs to the widget, which takes the focus from a click and the Tab key from now on.
  CopyGestures(QWidget& widget, std::function<void()> copy);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& widget_;
  std::function<void()> copy_;
};

/// The key copies the whole text of an area where nothing in it is selected.
class WholeTextCopy : public QObject {
  Q_OBJECT

 public:
  explicit WholeTextCopy(QWidget& area) : QObject(&area) { area.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tracewell
