// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace tracewell {

/// A box of replies and records. A record is one paragraph of 500 numbers, twice a second, of which
/// a few rows show. Only these are laid out until the user turns to the box.
class ReplyBox : public QPlainTextEdit {
 public:
  explicit ReplyBox(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Rows;

  Rows* rows_;
};

}  // namespace tracewell
