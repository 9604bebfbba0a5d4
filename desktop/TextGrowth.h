// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <QWidget>
#include <vector>

namespace tracewell {

/// Height of a widget's font in pixels, however it was set.
int pixelsOf(const QWidget& widget);

/// Enlarges texts in a larger window. A widget's property "pixels" is its size in a window of
/// 1280 x 800 or less; "mostPixels" is what it has room for. Other texts in "central" and "column"
/// grow more slowly, as far as none is cut. The column of knobs keeps its width: the graph takes
/// the rest.
class TextGrowth : public QObject {
 public:
  /// Changes nothing in a form without such widgets.
  explicit TextGrowth(QWidget& form);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void grow();
  void growSlowly();
  void limitColumn();
  /// Nothing has to be cut, as the fonts are now.
  bool fits() const;
  QStringList words() const;

  struct Text {
    QWidget* widget;
    int pixels;
    int mostPixels;
  };

  QWidget& form_;
  std::vector<Text> texts_;
  QWidget* central_;
  QWidget* column_;
  /// What grows slowly, in the column and elsewhere.
  std::vector<QWidget*> inColumn_;
  std::vector<QWidget*> beside_;
  /// The words for which it has grown, and how much it should.
  QStringList grownFor_;
  int wanted_ = 0;
};

}  // namespace tracewell
