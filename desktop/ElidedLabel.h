// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace tracewell {

/// A line of text that ends in "…" if its room is too small. A sign in front, if given, shows the
/// text's weight.
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
