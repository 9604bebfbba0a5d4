// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

namespace tracewell {

/// A preview of a trace: a line on the graph's dark ground.
class LineWidget : public QWidget {
  Q_OBJECT

 public:
  explicit LineWidget(QWidget* parent = nullptr);
  void setLine(const QColor& colour, bool isDotted);
  QSize sizeHint() const override { return {110, 24}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
  bool isDotted_ = false;
};

}  // namespace tracewell
