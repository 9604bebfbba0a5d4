// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <QWidget>
#include <vector>

namespace tracewell {

/// Height of a widget's font in pixels, however it was set.
int pixelsOf(const QWidget& widget);

/// What is read from afar is written larger in a larger window. A widget of a form says in its
/// property "pixels" how large in a window of 1280 x 800 or less, and in "mostPixels" what it has
/// room for. Everything else in "central" and in "column" grows more slowly, as far as no text is
/// cut. The column keeps its measure: the graph takes the rest.
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
