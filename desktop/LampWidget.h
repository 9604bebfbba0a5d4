// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

namespace tracewell {

/// A round lamp.
class LampWidget : public QWidget {
  Q_OBJECT

 public:
  explicit LampWidget(QWidget* parent = nullptr);
  void setColour(const QColor& colour);
  /// What the colour stands for, in words.
  void setState(const QString& state);
  QString state() const { return state_; }
  QSize sizeHint() const override { return {24, 24}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
  QString state_;
};

}  // namespace tracewell
