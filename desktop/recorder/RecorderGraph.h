// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "RecorderCursors.h"
#include "RecorderLook.h"
#include "RecorderPicture.h"

class QCPAxis;
class QCPCurve;
class QCPGraph;
class QCPItemLine;
class QCPItemText;
class QCustomPlot;

namespace tracewell {

/// Draws what the recorder shows: a grid with units, the axis of channel 1 at the left and that of
/// channel 2 at the right. The cursors are dragged, or moved with the arrow keys (Shift: ten times
/// as far); C makes the other one active.
class RecorderGraph : public QWidget {
  Q_OBJECT

 public:
  explicit RecorderGraph(QWidget* parent);

  void setLook(const RecorderLook& look);
  void showPicture(const RecorderPicture& picture, const RecorderCursors& cursors,
                   const std::vector<std::string>& texts);

  /// What is shown, at its own size on the screen; whether it has the focus does not matter.
  QPixmap picture();

  QSize minimumSizeHint() const override { return {320, 200}; }

 signals:
  void cursorMoved(std::size_t cursor, double share);
  /// A key that has another meaning here.
  void keyLeft(QKeyEvent* event);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Scale {
    double factor = 1;
  };
  Scale showAxis(QCPAxis& axis, const RecorderAxis& shown, const QString& name,
                 const QColor& colour);
  void showCurves(const RecorderPicture& picture);
  void showCurve(std::size_t index, const RecorderCurve& curve, QCPAxis& axis, int ages);
  void showXY(const RecorderPicture& picture);
  void showLabels();
  void showPeakLists(const std::array<QStringList, 2>& lists);
  void showCursors(const RecorderCursors& cursors, const std::vector<std::string>& texts);
  void showFocus(bool isFocused);
  void showNotes(const std::vector<std::string>& notes);
  QCPAxis& axisOf(int channel) const;
  double shareAt(const QPointF& place) const;
  std::optional<std::size_t> cursorAt(const QPointF& place) const;

  /// Leaves mouse and keys to this widget, whose layout owns it.
  QCustomPlot& plot_;
  RecorderLook look_;
  std::vector<QCPGraph*> graphs_;
  QCPCurve* curve_ = nullptr;
  std::vector<RecorderPicture::Label> peaks_;
  std::vector<QCPItemText*> labels_;
  std::array<QCPItemLine*, 2> cursorLines_{};
  std::array<QCPItemText*, 2> cursorNames_{};
  QCPItemText* badge_ = nullptr;
  QCPItemText* note_ = nullptr;
  std::array<QCPItemText*, 2> peakLists_{};
  RecorderCursors cursors_;
  std::optional<std::size_t> grabbed_;
  std::size_t active_ = 0;
  double acrossFactor_ = 1;
  std::array<double, 2> upFactors_{1, 1};
  bool hasOwnAxes_ = false;
};

}  // namespace tracewell
