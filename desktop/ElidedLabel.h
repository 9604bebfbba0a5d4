// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace tracewell {

/// A line of text that takes the room that it gets and ends in "…" where that is not enough. A text
/// has a sign in front of it that says its weight, where one was given.
class ElidedLabel : public QLabel {
  Q_OBJECT
  Q_PROPERTY(QColor warningColour MEMBER warningColour_)

 public:
  enum Sign { none, information, warning };

  explicit ElidedLabel(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {0, QLabel::sizeHint().height()}; }
  QSize minimumSizeHint() const override { return sizeHint(); }
  void setSign(Sign sign);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int signWidth() const;

  Sign sign_ = none;
  QColor warningColour_;
};

}  // namespace tracewell
