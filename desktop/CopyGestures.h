// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

namespace tracewell {

/// How a user copies a widget's content to another program: the copy key while it has the focus,
/// and "Copy" in its context menu.
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

/// Makes the copy key copy the whole text of an area if nothing in it is selected.
class WholeTextCopy : public QObject {
  Q_OBJECT

 public:
  explicit WholeTextCopy(QWidget& area) : QObject(&area) { area.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tracewell
