// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "frmDSO.h"

namespace tracewell {

/// Marks beside what the main window shows of the instrument. No mark is stored: each control, when
/// painted, compares what it shows with what is known. This holds the one list of which control
/// shows which setting, and repaints what has become different.
class PanelMarks {
 public:
  /// Connects the controls of `main`, which outlives this.
  explicit PanelMarks(frmDSO& main);
  PanelMarks(const PanelMarks&) = delete;

  /// Paints what has changed. Raises no event, so it may be called at any time. Call it regularly,
  /// since traces grow old.
  void show();

 private:
  void trust(Control& control, Setting setting, std::function<bool()> isShown);
  void trustScale(Setting setting, ValueLabel& label, Knob& knob, ScaleKnob kind);
  void trustSlide(Slide& slide, Setting setting);
  void showKnown();
  void showTraces();
  void showHint();

  frmDSO& main_;
  bool isHintTold_ = false;
};

}  // namespace tracewell
