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
  /// Screen readers hear of it at `described`, where that is another widget.
  static void show(QWidget& marked, bool isUnread, QWidget* described = nullptr);
  /// Pixels that it takes behind words.
  static constexpr int room = 17;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  UnreadMark(QWidget& marked, QWidget& described);
  void toPlace();
  void describe();

  QWidget& described_;
};

/// Dims a widget whose value belongs to something that is gone, or shows it normally.
void showPale(QWidget& widget, bool isPale);

}  // namespace tracewell
