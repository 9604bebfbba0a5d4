// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace tracewell {

/// A question mark on a widget whose value the instrument has not told: behind the words of a
/// button or label, in front of the arrow of a box with a list, in the gap of a knob's scale,
/// otherwise in the upper right corner. Screen readers get it as the widget's description.
class UnreadMark : public QWidget {
  Q_OBJECT

 public:
  /// Shows or hides the mark of `marked`, which owns it. Creates it when first shown.
  static void show(QWidget& marked, bool isUnread);
  /// Pixels that it takes behind words.
  static constexpr int room = 17;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit UnreadMark(QWidget& marked);
  void toPlace();
  void describe();
};

/// Describes the mark to screen readers on a widget other than the one that it stands on.
void describeUnread(QWidget& widget, bool isUnread);

/// Dims a widget whose value belongs to something that is gone, or shows it normally.
void showPale(QWidget& widget, bool isPale);

}  // namespace tracewell
