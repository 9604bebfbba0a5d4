// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandExchange.h"
#include "Cursors.h"
#include "ScaleTables.h"

namespace tracewell {

/// The three scale knobs: each step sends its scale, shows its caption and refreshes the read-out.
/// They catch nothing.
class ScaleKnobs {
 public:
  ScaleKnobs(frmDSO& main, CommandExchange& exchange, Cursors& cursors)
      : main_(main), exchange_(exchange), cursors_(cursors) {}

  void knobChan1_ValueChanged();
  void knobChan2_ValueChanged();
  void knobTime_ValueChanged();
  /// Only a change is sent. Says so where the instrument may have another scale.
  void knob_Stays(const Knob& knob);

 private:
  void sendScale(ScaleKnob kind, Knob& knob, ValueLabel& label);

  frmDSO& main_;
  CommandExchange& exchange_;
  Cursors& cursors_;
};

}  // namespace tracewell
