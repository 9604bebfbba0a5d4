// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QWidget>
#include <vector>

namespace tracewell {

/// Height of a widget's font in pixels, however it was set.
int pixelsOf(const QWidget& widget);

/// Enlarges texts that are read from afar in a larger window. A widget's property "pixels" is its
/// size in a window of 1280 x 800 or less; "mostPixels" is what it has room for. The column of
/// knobs, "column", keeps its size: the graph takes the rest.
class TextGrowth : public QObject {
 public:
  /// Changes nothing in a form without such widgets.
  explicit TextGrowth(QWidget& form);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void grow();
  void limitColumn();

  struct Text {
    QWidget* widget;
    int pixels;
    int mostPixels;
  };

  QWidget& form_;
  std::vector<Text> texts_;
};

}  // namespace tracewell
